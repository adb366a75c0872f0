// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelFile.h"

#include "CommandBoxes.h"
#include "Utf8.h"

#include <memory>
#include <vector>

namespace kob::command {

namespace {

/// What a failed call showed, without the first line: that one only says which call it was.
std::string reason(CommandBoxes& boxes) {
  const std::vector<std::string> notices = boxes.takeNotices();
  if (notices.empty()) {
    return "a record does not hold what it should";
  }
  const std::size_t lineEnd = notices.front().find('\n');
  return lineEnd == std::string::npos ? notices.front() : notices.front().substr(lineEnd + 1);
}

}  // namespace

void load(KOBModeleTraduction& model, const std::string& file) {
  CommandBoxes boxes;
  if (!model.Load(argumentText(file, "the file's name"))) {
    throw ReadError(file + " cannot be read: " + reason(boxes));
  }
}

KOBModeleTraduction& loaded(const std::string& file) {
  // Never released, and never lost from sight: a leak checker finds the models through this reference.
  static auto& models = *new std::vector<std::unique_ptr<KOBModeleTraduction>>;
  KOBModeleTraduction& model = *models.emplace_back(std::make_unique<KOBModeleTraduction>());
  load(model, file);
  return model;
}

void save(KOBModeleTraduction& model, const std::string& file) {
  CommandBoxes boxes;
  if (!model.Save(argumentText(file, "the file's name"))) {
    throw WriteError(file + " cannot be written: " + reason(boxes));
  }
}

void edit(const std::string& input, const std::string& output,
          const std::function<void(KOBModeleTraduction&)>& change) {
  KOBModeleTraduction& model = loaded(input);
  change(model);
  save(model, output);
}

}  // namespace kob::command
