// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SavedForms.h"

#include "Words.h"

#include <kobpersistence/KOBPersistence.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QFile>
#include <QProcess>
#include <QString>

#include <pugixml.hpp>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

constexpr int perFrame = 10;
constexpr int perForm = 100;

QString formName(int entry) {
  return QStringLiteral("FrmCustomer") + QString::number(entry / perForm);
}

QString frameName(int entry) {
  return QStringLiteral("fraAddress") + QString::number(entry % perForm / perFrame);
}

QString controlName(int entry) {
  return QStringLiteral("cmdAction") + QString::number(entry % perFrame);
}

kob::Text utf16(const QString& text) {
  return text.toStdU16String();
}

/// Bytes of this process that it shares with nobody.
std::size_t privateBytes() {
  std::ifstream rollup("/proc/self/smaps_rollup");
  std::size_t bytes = 0;
  for (std::string line; std::getline(rollup, line);) {
    if (line.starts_with("Private_Clean:") || line.starts_with("Private_Dirty:")) {
      bytes += std::strtoull(line.c_str() + line.find(':') + 1, nullptr, 10) * 1024;
    }
  }
  return bytes;
}

}  // namespace

QString SavedForms::text(int entry, int language) const {
  return QString::fromStdString(
      textFor(entry % 2 == 0 ? TextKind::Caption : TextKind::ToolTip, entry, language));
}

std::unique_ptr<kob::KOBModeleTraduction> SavedForms::model() const {
  auto model = std::make_unique<kob::KOBModeleTraduction>();
  std::shared_ptr<kob::KOBCellTraduction> form;
  std::shared_ptr<kob::KOBCellTraduction> frame;
  for (int i = 0; i < entries_; ++i) {
    if (i % perForm == 0) {
      form = model->Racine()->AddNoeuds(utf16(formName(i)));
    }
    if (i % perFrame == 0) {
      frame = form->AddNoeuds(utf16(frameName(i)));
    }
    std::int32_t failed = 0;
    const auto control = frame->AddCtrl(utf16(controlName(i)), {}, utf16(text(i, 1)), 1, 1, failed, {}, {});
    const auto entry = control->ColTraduction()->Item(1);
    for (int language = 2; language <= languages; ++language) {
      entry->ChangeTraduction(utf16(text(i, language)), language);
    }
  }
  return model;
}

QList<QStringList> SavedForms::lists() const {
  QList<QStringList> lists;
  lists.reserve(entries_);
  for (int i = 0; i < entries_; ++i) {
    QStringList list{formName(i) + '\\' + frameName(i) + '\\' + controlName(i)};
    for (int language = 1; language <= languages; ++language) {
      list.append(text(i, language));
    }
    lists.append(std::move(list));
  }
  return lists;
}

std::unique_ptr<pugi::xml_document> SavedForms::document() const {
  auto document = std::make_unique<pugi::xml_document>();
  const auto append = [](pugi::xml_node parent, const QString& name) {
    pugi::xml_node cell = parent.append_child("cell");
    cell.append_attribute("name") = name.toUtf8().constData();
    return cell;
  };
  pugi::xml_node root = document->append_child("model");
  pugi::xml_node form;
  pugi::xml_node frame;
  for (int i = 0; i < entries_; ++i) {
    if (i % perForm == 0) {
      form = append(root, formName(i));
    }
    if (i % perFrame == 0) {
      frame = append(form, frameName(i));
    }
    pugi::xml_node control = append(frame, controlName(i));
    for (int language = 1; language <= languages; ++language) {
      control.append_child("text").text().set(text(i, language).toUtf8().constData());
    }
  }
  return document;
}

QByteArray SavedForms::flatBytes() const {
  constexpr qsizetype bytesPerText = 64;
  QByteArray bytes(texts() * bytesPerText, '\0');
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(i * 31);
  }
  return bytes;
}

std::size_t readAll(const kob::KOBModeleTraduction& model) {
  std::size_t units = 0;
  std::vector<const kob::KOBCellTraduction*> open{model.Racine().get()};
  while (!open.empty()) {
    const kob::KOBCellTraduction& cell = *open.back();
    open.pop_back();
    units += cell.nom().size();
    if (cell.TypeFeuille() == 2) {
      for (const auto& entry : *cell.ColTraduction()) {
        const auto texts = entry->ColTraduction();
        for (std::int32_t language = 1; language <= texts->Count(); ++language) {
          const kob::TextView text = texts->Item(language);
          // The characters are looked at, too.
          units += text.size() + (text.empty() ? 0 : text.back() % 2);
        }
      }
    }
    if (cell.TypeCell() == 1) {
      for (const auto& child : *cell.ColCell()) {
        open.push_back(child.get());
      }
    }
  }
  return units;
}

std::size_t readAll(const QList<QStringList>& lists) {
  std::size_t units = 0;
  for (const QStringList& list : lists) {
    for (const QString& text : list) {
      units += static_cast<std::size_t>(text.size()) + (text.isEmpty() ? 0 : text.back().unicode() % 2);
    }
  }
  return units;
}

std::size_t readAll(const pugi::xml_document& document) {
  std::size_t bytes = 0;
  std::vector<pugi::xml_node> open{document.first_child()};
  while (!open.empty()) {
    const pugi::xml_node cell = open.back();
    open.pop_back();
    bytes += std::strlen(cell.attribute("name").value());
    for (const pugi::xml_node child : cell.children()) {
      if (std::strcmp(child.name(), "cell") == 0) {
        open.push_back(child);
      } else {
        bytes += std::strlen(child.child_value());
      }
    }
  }
  return bytes;
}

void findAll(const kob::KOBModeleTraduction& model) {
  for (const auto& form : *model.Racine()->ColCell()) {
    for (const auto& frame : *form->ColCell()) {
      for (const auto& control : *frame->ColCell()) {
        const kob::Text path =
            kob::Text(form->nom()) + u'\\' + kob::Text(frame->nom()) + u'\\' + kob::Text(control->nom());
        if (model.GetCell(path) != control) {
          throw std::runtime_error("a cell is not found by its path");
        }
      }
    }
  }
}

std::unique_ptr<kob::KOBModeleTraduction> loadModel(const QString& file) {
  auto model = std::make_unique<kob::KOBModeleTraduction>();
  if (!model->Load(file.toStdU16String())) {
    throw std::runtime_error("the model cannot be loaded");
  }
  return model;
}

QList<QStringList> loadLists(const QString& file) {
  QFile input(file);
  if (!input.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("the lists cannot be read");
  }
  const QByteArray bytes = input.readAll();
  QDataStream stream(bytes);
  QList<QStringList> lists;
  stream >> lists;
  return lists;
}

std::unique_ptr<pugi::xml_document> loadXml(const QString& file) {
  auto document = std::make_unique<pugi::xml_document>();
  if (!document->load_file(file.toUtf8().constData())) {
    throw std::runtime_error("the XML file cannot be read");
  }
  return document;
}

int grow(int what, const std::string& file) {
  const QString name = QString::fromStdString(file);
  const std::size_t before = privateBytes();
  std::unique_ptr<kob::KOBModeleTraduction> model;
  QList<QStringList> lists;
  std::unique_ptr<pugi::xml_document> xml;
  std::size_t read = 0;
  switch (static_cast<Loaded>(what)) {
    case Loaded::Model:
    case Loaded::Found:
      kob::usePersistence();
      model = loadModel(name);
      read = readAll(*model);
      if (static_cast<Loaded>(what) == Loaded::Found) {
        findAll(*model);
      }
      break;
    case Loaded::Lists:
      lists = loadLists(name);
      read = static_cast<std::size_t>(lists.size());
      break;
    case Loaded::Xml:
      xml = loadXml(name);
      read = xml->first_child() ? 1 : 0;
      break;
  }
  std::printf("%zu\n", privateBytes() - before);
  return read > 0 ? 0 : 2;
}

std::size_t growthOf(Loaded what, const QString& file) {
  QProcess process;
  process.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--grow"), QString::number(static_cast<int>(what)), file});
  if (!process.waitForFinished(-1) || process.exitCode() != 0) {
    throw std::runtime_error("the process that loads for a figure of memory failed");
  }
  return process.readAllStandardOutput().trimmed().toULongLong();
}

}  // namespace bench
