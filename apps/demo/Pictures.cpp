// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Pictures.h"

#include "Demo.h"
#include "Languages.h"
#include "Montage.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>

namespace kob::demo {

using namespace Qt::StringLiterals;

void showUnseen(QWidget& form) {
  form.setAttribute(Qt::WA_DontShowOnScreen);
  form.show();
  settle();
}

void settle() {
  // A layout that changed asks for another round.
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

QString describe(const Misfit& misfit, const QWidget& form, const QString& language) {
  QString text = u"%1 [%2]"_s.arg(controlPath(*misfit.control, form), language);
  if (!misfit.part.isEmpty()) {
    text += u' ' + misfit.part;
  }
  return text + u": %1: \"%2\""_s.arg(misfit.problem, misfit.text);
}

void PictureRun::run(const QString& folder) {
  if (!folder.isEmpty() && !QDir().mkpath(folder)) {
    errors_ += u"the folder cannot be made: "_s + folder;
    return;
  }
  const std::vector<Demo::View> views = demo_.views();
  std::vector<Montage> montages(views.size());
  for (const Language& language : languages) {
    demo_.switcher().setLanguage(language.number);
    ++applied_;
    const QString code = QLatin1String(language.code);
    for (std::size_t i = 0; i < views.size(); ++i) {
      const Demo::View& view = views[i];
      view.prepare();
      showUnseen(*view.form);
      for (const Misfit& misfit : findMisfits(*view.form)) {
        const QString described = describe(misfit, *view.form, code);
        if (!misfits_.contains(described)) {
          misfits_ += described;
        }
      }
      if (!folder.isEmpty()) {
        const QImage picture = view.form->grab().toImage();
        save(picture, folder, view.name + u'-' + code);
        montages[i].add(picture, QString::fromUtf16(language.ownName) + u" – "_s + view.form->windowTitle());
      }
    }
  }
  for (std::size_t i = 0; !folder.isEmpty() && i < views.size(); ++i) {
    save(montages[i].picture(), folder, views[i].name);
  }
}

void PictureRun::save(const QImage& picture, const QString& folder, const QString& name) {
  const QString path = QDir(folder).filePath(name + u".png"_s);
  if (picture.isNull() || !picture.save(path)) {
    errors_ += u"the picture cannot be written: "_s + path;
    return;
  }
  ++pictures_;
}

}  // namespace kob::demo
