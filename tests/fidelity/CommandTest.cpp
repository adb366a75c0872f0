// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <QProcess>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// The command as a person calls it.
class CommandTest : public testing::Test {
 protected:
  int run(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(KOB_FIDELITY_COMMAND), arguments);
    EXPECT_TRUE(process.waitForFinished(60'000));
    out_ = process.readAllStandardOutput().toStdString();
    err_ = process.readAllStandardError().toStdString();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
  }
  static QString folder(const char* name) {
    return QStringLiteral(KOB_FIDELITY_CASES "/%1").arg(QLatin1String(name));
  }

  std::string out_;
  std::string err_;
};

TEST_F(CommandTest, ends_with_0_and_one_line_of_sums_when_all_is_equal) {
  EXPECT_EQ(run({folder("names")}), 0);
  EXPECT_THAT(out_, EndsWith("\nfidelity: 32 of 32 equal\n"));
  EXPECT_EQ(out_.find("fidelity: "), out_.rfind("fidelity: "));
  EXPECT_EQ(err_, "");
}

TEST_F(CommandTest, ends_with_1_when_too_few_are_equal) {
  EXPECT_EQ(run({folder("namesake")}), 1);
  EXPECT_EQ(run({folder("namesake"), "--threshold", "50"}), 0);
}

TEST_F(CommandTest, ends_with_1_when_a_form_failed) {
  EXPECT_EQ(run({folder("bad"), "--threshold", "0"}), 1);
}

TEST_F(CommandTest, ends_with_1_when_nothing_was_compared) {
  const TestFiles files;
  EXPECT_EQ(run({files.path()}), 1);
  EXPECT_THAT(out_, HasSubstr("nothing was compared"));
}

TEST_F(CommandTest, ends_with_2_for_a_wrong_call) {
  EXPECT_EQ(run({}), 2);
  EXPECT_EQ(run({folder("none")}), 2);
  EXPECT_EQ(run({folder("names"), "--sample", "0"}), 2);
  EXPECT_EQ(run({folder("names"), "--threshold", "101"}), 2);
  EXPECT_EQ(run({folder("names"), "--nonsense"}), 2);
}

TEST_F(CommandTest, tells_what_it_does_when_asked) {
  EXPECT_EQ(run({"--help"}), 0);
  EXPECT_THAT(out_, HasSubstr("--sample"));
  EXPECT_THAT(out_, HasSubstr("Exit code"));
}

TEST_F(CommandTest, takes_several_folders_and_adds_them_up) {
  EXPECT_EQ(run({folder("names"), folder("longtexts")}), 0);
  EXPECT_THAT(out_, EndsWith("\nfidelity: 35 of 35 equal\n"));
}

TEST_F(CommandTest, a_sample_takes_every_nth_form_of_all) {
  EXPECT_EQ(run({folder("names"), folder("sameclass"), "--sample", "2"}), 0);
  EXPECT_THAT(out_, HasSubstr("names: 1 of 2 forms"));
  EXPECT_THAT(out_, HasSubstr("sameclass: 1 of 2 forms"));
}

}  // namespace
}  // namespace kob::fidelity
