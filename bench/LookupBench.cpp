// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Catalogs.h"
#include "LookupTree.h"
#include "PathTable.h"
#include "Suite.h"

#include <QTemporaryDir>
#include <QTranslator>

#include <libintl.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace bench {

namespace {

/// A path that is asked, as the component and the table take it and as the catalogs take it.
struct Query {
  kob::Text path;
  std::string source;
};

std::string sourceOf(const Leaf& leaf) {
  return leaf.form + '\\' + leaf.frame + '\\' + leaf.control;
}

std::vector<Query> makeQueries(const std::vector<Leaf>& leaves) {
  std::vector<Query> queries;
  queries.reserve(leaves.size());
  for (const Leaf& leaf : leaves) {
    queries.push_back({leaf.path(), sourceOf(leaf)});
  }
  return queries;
}

class Table {
 public:
  Table(const LookupTree& tree, const std::vector<Leaf>& leaves) : table_(leaves.size()) {
    for (const Leaf& leaf : leaves) {
      table_.add(leaf.path(), tree.model().findCell(leaf.path()));
    }
  }
  bool find(const Query& query) const { return table_.find(query.path) != nullptr; }

 private:
  PathTable table_;
};

class StandardMap {
 public:
  StandardMap(const LookupTree& tree, const std::vector<Leaf>& leaves) {
    for (const Leaf& leaf : leaves) {
      map_.emplace(kob::upper(leaf.path()), tree.model().findCell(leaf.path()));
    }
  }
  bool find(const Query& query) const { return map_.find(kob::upper(query.path)) != map_.end(); }

 private:
  std::unordered_map<kob::Text, const void*> map_;
};

constexpr const char* catalogContext = "Paths";

/// The catalogs hold the same entries, each under its whole path.
std::vector<Message> messagesOf(const std::vector<Leaf>& leaves) {
  std::vector<Message> messages;
  messages.reserve(leaves.size());
  for (const Leaf& leaf : leaves) {
    messages.push_back({catalogContext, sourceOf(leaf), leaf.text});
  }
  return messages;
}

class QtCatalog {
 public:
  explicit QtCatalog(const std::vector<Leaf>& leaves) {
    const QString file = compileQtCatalog(messagesOf(leaves), folder_.path(), "paths");
    if (file.isEmpty() || !translator_.load(file)) {
      throw std::runtime_error("the Qt catalog cannot be made; is lrelease installed?");
    }
  }
  bool find(const Query& query) const {
    return !translator_.translate(catalogContext, query.source.c_str()).isEmpty();
  }

 private:
  QTemporaryDir folder_;
  QTranslator translator_;
};

class GettextCatalog {
 public:
  /// `domain` must be a new one each time: a catalog stays loaded until the program ends.
  GettextCatalog(const std::vector<Leaf>& leaves, const std::string& domain) : domain_(domain) {
    if (!compileGettextCatalog(messagesOf(leaves), folder_.path(), "fr", QString::fromStdString(domain))) {
      throw std::runtime_error("the gettext catalog cannot be made; is msgfmt installed?");
    }
    // Any locale but "C" makes gettext look at LANGUAGE.
    setenv("LANGUAGE", "fr", 1);
    std::setlocale(LC_MESSAGES, "C.UTF-8");
    bindtextdomain(domain_.c_str(), folder_.path().toLocal8Bit().constData());
    bind_textdomain_codeset(domain_.c_str(), "UTF-8");
  }
  bool find(const Query& query) const {
    return dgettext(domain_.c_str(), query.source.c_str()) != query.source.c_str();
  }

 private:
  QTemporaryDir folder_;
  std::string domain_;
};

/// Asks everything `times` times over; fails when something is not found.
template <class Find>
void askAll(const std::vector<Query>& queries, int times, Find find) {
  std::size_t found = 0;
  for (int i = 0; i < times; ++i) {
    for (const Query& query : queries) {
      found += find(query) ? 1 : 0;
    }
  }
  if (found != queries.size() * static_cast<std::size_t>(times)) {
    throw std::runtime_error("a path is not found");
  }
}

void play(const std::string& what, const std::string& size, const LookupTree& tree,
          const std::vector<Leaf>& asked, int times, bool withPeers, const Target& target,
          const std::function<void(Contest&)>& run) {
  const std::vector<Query> queries = makeQueries(asked);
  const Table table(tree, tree.leaves());
  const StandardMap map(tree, tree.leaves());
  std::unique_ptr<QtCatalog> qt;
  std::unique_ptr<GettextCatalog> gettextCatalog;
  if (withPeers) {
    static int domains = 0;
    qt = std::make_unique<QtCatalog>(tree.leaves());
    gettextCatalog = std::make_unique<GettextCatalog>(tree.leaves(), "paths" + std::to_string(++domains));
  }
  Contest contest(what, size);
  const auto count = static_cast<std::int64_t>(queries.size()) * times;
  const auto add = [&](const char* name, auto find) {
    contest.add(name, count, [&queries, times, find](int) { askAll(queries, times, find); });
  };
  add("GetCell", [&](const Query& query) { return tree.model().GetCell(query.path) != nullptr; });
  add("one table of paths", [&](const Query& query) { return table.find(query); });
  add("std::unordered_map", [&](const Query& query) { return map.find(query); });
  if (withPeers) {
    add("QTranslator (.qm)", [&](const Query& query) { return qt->find(query); });
    add("gettext (.mo)", [&](const Query& query) { return gettextCatalog->find(query); });
  }
  contest.expect(target);
  run(contest);
}

constexpr int hotPaths = 16;
constexpr int hotTimes = 500;

void contestHot(int perLevel, const std::function<void(Contest&)>& run) {
  const LookupTree tree = LookupTree::hot(perLevel);
  play("GetCell, hot", std::to_string(perLevel) + " a level", tree, tree.hotLeaves(hotPaths), hotTimes, true,
       {"GetCell", "one table of paths", 2.1, 1.6}, run);
}

void contestOfLevels(const std::function<void(Contest&)>& run) {
  Contest contest("GetCell, children per level", "10 to 1000");
  struct Level {
    LookupTree tree;
    std::vector<Query> queries;
  };
  std::vector<std::unique_ptr<Level>> levels;
  for (const int perLevel : {1000, 100, 10}) {
    LookupTree tree = LookupTree::hot(perLevel);
    std::vector<Query> queries = makeQueries(tree.hotLeaves(hotPaths));
    levels.push_back(std::make_unique<Level>(Level{std::move(tree), std::move(queries)}));
    Level& level = *levels.back();
    contest.add(std::to_string(perLevel) + " a level", std::int64_t{hotTimes} * hotPaths, [&level](int) {
      askAll(level.queries, hotTimes,
             [&level](const Query& query) { return level.tree.model().GetCell(query.path) != nullptr; });
    });
  }
  contest.expect({"1000 a level", "10 a level", 3.0});
  run(contest);
}

void contestRandom(int entries, bool withPeers, double must, const std::function<void(Contest&)>& run) {
  const LookupTree tree = LookupTree::wide(entries);
  std::vector<Leaf> asked = tree.leaves();
  std::shuffle(asked.begin(), asked.end(), std::mt19937(12345));
  play("GetCell, random", std::to_string(entries), tree, asked, 1, withPeers,
       {"GetCell", "one table of paths", must, 1.15}, run);
}

}  // namespace

void addLookup(Suite& suite) {
  for (const int perLevel : {10, 100, 1000}) {
    suite.add("GetCell/hot/" + std::to_string(perLevel),
              [perLevel](const auto& run) { contestHot(perLevel, run); });
  }
  suite.add("GetCell/children", [](const auto& run) { contestOfLevels(run); });
  suite.add("GetCell/random/100000", [](const auto& run) { contestRandom(100000, true, 2.1, run); });
  if (!suite.settings().quick) {
    // The catalogs of the peers take minutes to compile at this size.
    suite.add("GetCell/random/1000000", [](const auto& run) { contestRandom(1000000, false, 2.6, run); });
  }
}

}  // namespace bench
