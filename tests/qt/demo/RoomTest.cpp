// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <Pictures.h>

#include <gmock/gmock.h>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

class Room : public DemoForms {
 protected:
  QStringList misfits() {
    PictureRun run(demo_);
    run.run({});
    return run.misfits();
  }
};

TEST_F(Room, EveryTextFitsInEveryLanguage) {
  EXPECT_EQ(misfits(), QStringList());
}

TEST_F(Room, WithoutItsWidthFactorTheGermanLabelIsTooNarrow) {
  demo_.model().GetCell(u"DlgPret\\lblCaution")->ChangeWidth(1, German);
  const QStringList found = misfits();
  ASSERT_EQ(found.size(), 1);
  EXPECT_TRUE(found[0].startsWith(u"DlgPret\\lblCaution [de]: needs "_s)) << found[0].toStdString();
  EXPECT_TRUE(found[0].endsWith(u" pixels of width, has 102: \"Hinterlegte Kaution\""_s))
      << found[0].toStdString();
}

TEST_F(Room, WithoutItsLeftFactorTheGermanFieldLiesUnderItsLabel) {
  demo_.model().GetCell(u"DlgPret\\txtCaution")->ChangeLeft(1, German);
  const QStringList found = misfits();
  ASSERT_EQ(found.size(), 1);
  EXPECT_TRUE(found[0].startsWith(u"DlgPret\\lblCaution [de]: lies "_s)) << found[0].toStdString();
}

TEST_F(Room, WithoutTheFactorOfTheDialogItsGermanButtonsReachOut) {
  demo_.model().GetCell(u"DlgPret")->ChangeWidth(1, German);
  EXPECT_THAT(misfits(),
              testing::Contains(testing::Property(
                  &QString::toStdString, testing::StartsWith("DlgPret\\cmdEnregistrer [de]: needs "))));
}

TEST_F(Room, ATextThatIsTooLongForItsButtonIsFound) {
  demo_.model()
      .GetCell(u"DlgPret\\cmdAnnuler")
      ->ColTraduction()
      ->Item(1)
      ->ChangeTraduction(u"Doch lieber nicht ausleihen", German);
  const QStringList found = misfits();
  ASSERT_EQ(found.size(), 1);
  EXPECT_TRUE(found[0].startsWith(u"DlgPret\\cmdAnnuler [de]: needs "_s)) << found[0].toStdString();
}

}  // namespace

}  // namespace kob::demo
