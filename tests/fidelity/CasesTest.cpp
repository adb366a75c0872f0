// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <Run.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

QStringList caseNames() {
  return QDir(KOB_FIDELITY_CASES).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/// Each folder of cases is a small application, and what is printed about it stands in its expected.txt.
class CasesTest : public testing::TestWithParam<std::string> {};

TEST_P(CasesTest, prints_what_is_expected) {
  const QString folder = QStringLiteral(KOB_FIDELITY_CASES "/") + QString::fromStdString(GetParam());
  kob::fidelity::Run run({});
  QString printed = run.check(folder);
  printed += summary(run.sums(), 99.9);

  const QString expectedFile = folder + QStringLiteral("/expected.txt");
  if (qEnvironmentVariableIsSet("KOB_UPDATE_EXPECTED")) {
    QFile update(expectedFile);
    ASSERT_TRUE(update.open(QIODevice::WriteOnly));
    update.write(printed.toUtf8());
  }
  QFile file(expectedFile);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << expectedFile.toStdString();
  EXPECT_EQ(printed.toStdString(), file.readAll().toStdString())
      << "when the new output is right, run with KOB_UPDATE_EXPECTED=1 to update "
      << expectedFile.toStdString();
}

std::vector<std::string> parameters() {
  std::vector<std::string> names;
  for (const QString& name : caseNames()) {
    names.push_back(name.toStdString());
  }
  return names;
}

INSTANTIATE_TEST_SUITE_P(Small, CasesTest, testing::ValuesIn(parameters()),
                         [](const testing::TestParamInfo<std::string>& parameter) {
                           return parameter.param;
                         });

}  // namespace
}  // namespace kob::fidelity
