// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Report.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace bench {

namespace {

std::string format(const char* pattern, double value) {
  char text[64];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

std::string timeText(double seconds) {
  if (seconds < 1e-6) {
    return format("%.1f ns", seconds * 1e9);
  }
  return seconds < 1e-3 ? format("%.2f us", seconds * 1e6) : format("%.2f ms", seconds * 1e3);
}

std::string figureText(const Measured& measured, double value) {
  return measured.unit == Unit::Bytes ? format("%.1f B", value) : timeText(value);
}

std::string padded(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size() + 1), ' ');
  return text;
}

/// The ratio, or the figure, that a target is about; 0 when it was not measured.
double ratioOf(const Measured& measured, const Target& target) {
  const Series* const subject = measured.find(target.subject);
  if (subject != nullptr && target.reference.empty()) {
    return median(subject->seconds);
  }
  const Series* const reference = measured.find(target.reference);
  return subject != nullptr && reference != nullptr ? pairedRatio(*subject, *reference) : 0;
}

const char* verdict(const Target& target, double ratio) {
  if (ratio == 0) {
    return "not measured";
  }
  if (ratio > target.must) {
    return ratio > target.must * gateSlack ? "MISSED" : "missed, within the slack";
  }
  return target.aim != 0 && ratio <= target.aim ? "aim reached" : "met";
}

void printMeasured(const Measured& measured, std::ostream& out) {
  const Series& own = measured.series.front();
  for (const Series& series : measured.series) {
    const bool isFirst = &series == &own;
    out << padded(isFirst ? measured.what : "", 34) << padded(isFirst ? measured.size : "", 12)
        << padded(series.name, 28) << padded(figureText(measured, median(series.seconds)), 12);
    out << (isFirst ? "" : format("%.2fx", pairedRatio(own, series))) << '\n';
  }
  for (const Target& target : measured.targets) {
    const double ratio = ratioOf(measured, target);
    const bool isRatio = !target.reference.empty();
    const auto figure = [&](double value) {
      return isRatio ? format("%.2fx", value) : figureText(measured, value);
    };
    out << "    " << target.subject << (isRatio ? " / " : "") << target.reference << ": " << figure(ratio)
        << ", must " << figure(target.must);
    if (target.aim != 0) {
      out << ", aim " << figure(target.aim);
    }
    out << ": " << verdict(target, ratio) << '\n';
  }
}

QJsonObject toJson(const Measured& measured) {
  QJsonArray series;
  for (const Series& each : measured.series) {
    QJsonArray rounds;
    for (const double seconds : each.seconds) {
      rounds.append(seconds);
    }
    series.append(
        QJsonObject{{"name", QString::fromStdString(each.name)},
                    {measured.unit == Unit::Bytes ? "median_bytes" : "median_seconds", median(each.seconds)},
                    {"own_time_over_this", pairedRatio(measured.series.front(), each)},
                    {measured.unit == Unit::Bytes ? "rounds_bytes" : "rounds_seconds", rounds}});
  }
  QJsonArray targets;
  for (const Target& target : measured.targets) {
    const double ratio = ratioOf(measured, target);
    targets.append(QJsonObject{{"subject", QString::fromStdString(target.subject)},
                               {"reference", QString::fromStdString(target.reference)},
                               {"ratio", ratio},
                               {"must", target.must},
                               {"aim", target.aim != 0 ? QJsonValue(target.aim) : QJsonValue()},
                               {"verdict", verdict(target, ratio)}});
  }
  return {{"what", QString::fromStdString(measured.what)},
          {"size", QString::fromStdString(measured.size)},
          {"series", series},
          {"targets", targets}};
}

}  // namespace

void printTable(const std::vector<Measured>& results, std::ostream& out) {
  out << '\n'
      << padded("What", 34) << padded("Size", 12) << padded("Who", 28) << padded("Median", 12)
      << "Own time / this\n";
  for (const Measured& measured : results) {
    printMeasured(measured, out);
  }
  out << "Times are for one operation (one control, one look-up), ratios medians of the ratios round by "
         "round.\n";
}

bool writeJson(const std::vector<Measured>& results, const std::string& file) {
  QJsonArray contests;
  for (const Measured& measured : results) {
    contests.append(toJson(measured));
  }
  const QByteArray text = QJsonDocument(QJsonObject{{"contests", contests}}).toJson();
  QFile output(QString::fromStdString(file));
  return output.open(QIODevice::WriteOnly) && output.write(text) == text.size() && output.flush();
}

bool missesGate(const std::vector<Measured>& results) {
  for (const Measured& measured : results) {
    for (const Target& target : measured.targets) {
      if (ratioOf(measured, target) > target.must * gateSlack) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace bench
