// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MergeModels.h"
#include "PathTable.h"
#include "SavedForms.h"
#include "Suite.h"

#include <kobpersistence/KOBPersistence.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

using Version = MergeModels::Version;

/// How a model came into being: a host made it cell by cell, or it was loaded.
enum class Origin { Made, Loaded };

/// A model that is new in each pass, made or loaded and released untimed.
class FreshModel {
 public:
  FreshModel(const MergeModels& models, Version version, Origin origin = Origin::Made)
      : models_(models), version_(version), origin_(origin) {
    if (origin == Origin::Loaded) {
      kob::usePersistence();
      if (!models.model(version)->Save(file().toStdU16String())) {
        throw std::runtime_error("the model cannot be saved");
      }
    }
  }

  void renew() {
    model_.reset();
    model_ = origin_ == Origin::Made ? models_.model(version_) : loadModel(file());
  }
  void release() { model_.reset(); }
  kob::KOBModeleTraduction& operator*() const { return *model_; }
  kob::KOBModeleTraduction* operator->() const { return model_.get(); }

 private:
  QString file() const { return folder_.filePath(QStringLiteral("fresh.trad")); }

  const MergeModels& models_;
  Version version_;
  Origin origin_;
  QTemporaryDir folder_;
  std::unique_ptr<kob::KOBModeleTraduction> model_;
};

/// The floor of merging: two arrays, and a table of the other one's paths that is ready.
class Join {
 public:
  explicit Join(const MergeModels& models)
      : own_(models, Version::Own), other_(models, Version::Other), table_(other_.records().size()) {
    for (const MergeRecords::Record& record : other_.records()) {
      table_.add(record.path, &record);
    }
  }

  void restore() { own_.restore(); }
  void run() {
    for (MergeRecords::Record& record : own_.records()) {
      const auto* const other = static_cast<const MergeRecords::Record*>(table_.find(record.path));
      if (other == nullptr) {
        throw std::runtime_error("a path is not found");
      }
      for (std::size_t i = 1; i < record.texts.size(); ++i) {
        if (record.texts[i].empty() && !other->texts[i].empty()) {
          record.texts[i] = other->texts[i];
        }
      }
    }
  }
  const MergeRecords& own() const noexcept { return own_; }

 private:
  MergeRecords own_;
  MergeRecords other_;
  PathTable table_;
};

std::size_t hashOf(kob::TextView text) {
  return std::hash<kob::Text>()(kob::upper(text));
}

/// Every reference text of the model is hashed once, where it lies, by the component's own walk: how much of
/// completing is coming to the texts. No floor, as a slower walk would make it a higher one.
void hashAll(kob::KOBModeleTraduction& model) {
  std::size_t sum = 0;
  kob::CellWalk::each(*model.Racine(), [&sum](const kob::KOBCellTraduction& cell) {
    kob::eachEntry(
        cell, [&sum](const kob::KOBTraductionObj& entry) { sum += hashOf(kob::textsOf(entry).Item(1)); });
  });
  benchmark::DoNotOptimize(sum);
}

/// The floor of completing: the same of texts that lie side by side in an array.
void hashAll(const std::vector<kob::Text>& references) {
  std::size_t sum = 0;
  for (const kob::Text& text : references) {
    sum += hashOf(text);
  }
  benchmark::DoNotOptimize(sum);
}

/// The same by the component's hash, which needs no upper-cased copy.
void hashAllInPlace(const std::vector<kob::Text>& references) {
  std::uint32_t sum = 0;
  for (const kob::Text& text : references) {
    sum += kob::hashUpper(text);
  }
  benchmark::DoNotOptimize(sum);
}

std::vector<kob::Text> referencesOf(const MergeModels& models) {
  std::vector<kob::Text> references;
  references.reserve(static_cast<std::size_t>(models.entries()));
  for (int i = 0; i < models.entries(); ++i) {
    references.push_back(utf16(models.text(Version::Own, i, 1)));
  }
  return references;
}

void contestPaths(int entries, double must, const std::function<void(Contest&)>& run) {
  const MergeModels models(entries);
  FreshModel own(models, Version::Own);
  FreshModel other(models, Version::Other);
  Join join(models);
  Contest contest("Merge by path, 5 languages", std::to_string(entries));
  contest.add(
      "merge by path", entries, [&](int) { own->Racine()->UpdateCellWithModele(*other, -1); },
      [&](int) {
        own.renew();
        other.renew();
      });
  contest.add(
      "join, table ready", entries, [&](int) { join.run(); }, [&](int) { join.restore(); });
  contest.expect({"merge by path", "join, table ready", must, 2.0});
  run(contest);
}

void contestCompleting(int entries, const std::function<void(Contest&)>& run) {
  const MergeModels models(entries);
  FreshModel loaded(models, Version::Own, Origin::Loaded);
  FreshModel made(models, Version::Own);
  const std::vector<kob::Text> references = referencesOf(models);
  Contest contest("Complete identical texts", std::to_string(entries));
  const auto add = [&](const char* name, FreshModel& model, auto work) {
    contest.add(
        name, entries, [&model, work](int) { work(*model); },
        [&](int) {
          loaded.release();
          made.release();
          model.renew();
        });
  };
  const auto complete = [](kob::KOBModeleTraduction& model) { model.CompleteIdentiques(); };
  const auto hash = [](kob::KOBModeleTraduction& model) { hashAll(model); };
  add("Complete, loaded before", loaded, complete);
  add("Complete, just made", made, complete);
  add("hash each text, loaded", loaded, hash);
  add("hash each text, made", made, hash);
  contest.add("hash each text, an array", entries, [&](int) { hashAll(references); });
  contest.add("the same by hashUpper", entries, [&](int) { hashAllInPlace(references); });
  contest.expect({"Complete, loaded before", "hash each text, an array", 5.0, 4.0});
  contest.expect({"Complete, just made", "hash each text, an array", 5.0, 4.0});
  run(contest);
}

/// The merge commands of other systems, on catalogs with the same texts.
class Peers {
 public:
  explicit Peers(const MergeModels& models) {
    constexpr int language = 2;
    isMade_ = writeMergeCatalogs(models.messages(Version::Own, language),
                                 models.messages(Version::Other, language), folder_.path());
    if (!isMade_) {
      throw std::runtime_error("the catalogs cannot be written");
    }
  }
  void gettext() const { check(runMsgmerge(folder_.path()), "msgmerge"); }
  void qt() const { check(runLconvert(folder_.path()), "lconvert"); }
  QString path(const QString& name) const { return folder_.filePath(name); }

 private:
  static void check(bool done, const char* tool) {
    if (!done) {
      throw std::runtime_error(std::string(tool) + " does not run; is it installed?");
    }
  }

  QTemporaryDir folder_;
  bool isMade_ = false;
};

void contestWhole(int entries, bool withPeers, const std::function<void(Contest&)>& run) {
  const MergeModels models(entries);
  FreshModel own(models, Version::Own);
  FreshModel other(models, Version::Other);
  Join join(models);
  const std::vector<kob::Text> references = referencesOf(models);
  const auto peers = withPeers ? std::make_unique<Peers>(models) : nullptr;
  Contest contest("Merge, whole, 5 languages", std::to_string(entries));
  contest.add(
      "UpdateWithTraductionModele", entries, [&](int) { own->UpdateWithTraductionModele(*other); },
      [&](int) {
        own.renew();
        other.renew();
      });
  contest.add(
      "join, then hash", entries,
      [&](int) {
        join.run();
        hashAll(references);
      },
      [&](int) { join.restore(); });
  if (peers != nullptr) {
    contest.add("msgmerge, 1 language", entries, [&](int) { peers->gettext(); });
    contest.add("lconvert, 1 language", entries, [&](int) { peers->qt(); });
  }
  contest.expect({"UpdateWithTraductionModele", "join, then hash", 3.0, 2.0});
  run(contest);
}

/// Whole commands, from reading the files to writing one.
void contestCommands(int entries, const std::function<void(Contest&)>& run) {
  const MergeModels models(entries);
  const Peers peers(models);
  const QString own = peers.path("own.trad");
  const QString other = peers.path("other.trad");
  kob::usePersistence();
  if (!models.model(Version::Own)->Save(own.toStdU16String()) ||
      !models.model(Version::Other)->Save(other.toStdU16String())) {
    throw std::runtime_error("the models cannot be saved");
  }
  const QString kobtrad = QCoreApplication::applicationDirPath() + "/kobtrad";
  const QStringList arguments{"merge", own, other, "-o", peers.path("merged.trad")};
  Contest contest("Merge, whole command", std::to_string(entries));
  contest.add("kobtrad merge, 5 languages", entries, [&](int) {
    if (!runTool(kobtrad, arguments)) {
      throw std::runtime_error("kobtrad does not merge; is it built?");
    }
  });
  contest.add("msgmerge, 1 language", entries, [&](int) { peers.gettext(); });
  contest.add("lconvert, 1 language", entries, [&](int) { peers.qt(); });
  contest.expect({"kobtrad merge, 5 languages", "msgmerge, 1 language", 0.25});
  contest.expect({"kobtrad merge, 5 languages", "lconvert, 1 language", 0.25});
  run(contest);
}

void contestSearch(int entries, const std::function<void(Contest&)>& run) {
  const MergeModels models(entries);
  const auto model = models.model(Version::Own);
  const std::vector<kob::Text> references = referencesOf(models);
  const kob::Text sought = u"order";
  std::int32_t found = 0;
  Contest contest("Search a text", std::to_string(entries));
  contest.add("SearchString", entries, [&](int) {
    kob::CellResults results;
    model->SearchString(sought, &results);
    found = results.Count();
  });
  contest.add("loop over an array", entries, [&](int) {
    const kob::Text uppered = kob::upper(sought);
    std::vector<const kob::Text*> hits;
    for (const kob::Text& text : references) {
      if (kob::upper(text).find(uppered) != kob::Text::npos) {
        hits.push_back(&text);
      }
    }
    if (static_cast<std::int32_t>(hits.size()) != found) {
      throw std::runtime_error("the searches find different numbers of texts");
    }
  });
  contest.expect({"SearchString", "loop over an array", 3.0});
  run(contest);
}

}  // namespace

void addMerging(Suite& suite) {
  for (const int entries : {10000, 100000, 1000000}) {
    if (suite.settings().quick && entries > 100000) {
      continue;
    }
    const std::string size = std::to_string(entries);
    suite.add("Merge/path/" + size, [entries](const auto& run) { contestPaths(entries, 3.0, run); });
    suite.add("Merge/complete/" + size, [entries](const auto& run) { contestCompleting(entries, run); });
    suite.add("Merge/whole/" + size,
              [entries](const auto& run) { contestWhole(entries, entries <= 100000, run); });
    if (entries == 100000) {
      suite.add("Merge/command/" + size, [entries](const auto& run) { contestCommands(entries, run); });
    }
    suite.add("Search/" + size, [entries](const auto& run) { contestSearch(entries, run); });
  }
}

}  // namespace bench
