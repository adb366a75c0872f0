// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/persistence/FileManager.h>

#include <exception>
#include <memory>

namespace kob {

namespace {

constexpr TextView boxTitle = u"KOBCN";
constexpr std::int32_t fileMode = 1;

std::unique_ptr<FileManager> makeFileManager() {
  const MakeFileManager make = persistenceService();
  std::unique_ptr<FileManager> files = make != nullptr ? make() : nullptr;
  if (files == nullptr) {
    throw PersistFailure(
        u"This program has no persistence service: it has to plug one in (setPersistenceService) before it "
        u"saves or loads.");
  }
  return files;
}

/// A description whose encoding nobody tells: what is not ASCII can only be marked.
Text widened(const char* description) {
  Text text;
  for (const char* unit = description; *unit != '\0'; ++unit) {
    const auto byte = static_cast<unsigned char>(*unit);
    text += byte < 0x80 ? static_cast<char16_t>(byte) : u'\uFFFD';
  }
  return text;
}

/// Runs a call of the service; what it raises is shown below `text`. Whether the call and all its records
/// succeeded.
template <class Call>
bool served(TextView text, Call call) {
  const auto show = [text](TextView description) {
    Global_Util::messageBoxes().notice(Text(text) + u"\r\n" + Text(description), boxTitle,
                                       MessageIcon::Critical);
    return false;
  };
  try {
    Global_Util::setPersistOk(true);
    call(*makeFileManager());
    return Global_Util::PersistOk();
  } catch (const PersistFailure& failure) {
    return show(failure.description());
  } catch (const std::exception& failure) {
    return show(widened(failure.what()));
  } catch (...) {
    return show(u"The persistence service failed and did not say why.");
  }
}

}  // namespace

bool KOBModeleTraduction::Save(TextView Filename) {
  return served(u"Erreur de sauvegarde du modèle",
                [&](FileManager& files) { files.SaveToFile(Filename, *this, fileMode); });
}

bool KOBModeleTraduction::Load(TextView Filename) {
  // The name may be a view of Fichier itself.
  const Text name(Filename);
  return served(u"Erreur de chargement du modèle", [&](FileManager& files) {
    files.LoadFromFile(name, *this);
    // Also when a record failed: the model is now what that file gave.
    setFichier(name);
  });
}

}  // namespace kob
