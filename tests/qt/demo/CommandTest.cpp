// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtPrinting.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using namespace Qt::StringLiterals;

struct Ended {
  int status;
  QString out;
  QString errors;
};

class Command : public testing::Test {
 protected:
  /// The command in an empty folder, on a machine without a screen.
  Ended run(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
      environment.remove(QLatin1String(name));
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder_.path());
    process.start(QStringLiteral(KOB_DEMO_COMMAND), arguments);
    const bool ended = process.waitForFinished(180000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }

  QStringList pictures(const QString& name) const {
    return QDir(folder_.filePath(name)).entryList({u"*.png"_s}, QDir::Files);
  }
  QImage picture(const QString& name) const { return QImage(folder_.filePath(name)); }

  QTemporaryDir folder_;
};

TEST_F(Command, HelpNamesTheArguments) {
  const Ended ended = run({u"--help"_s});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(ended.out.contains(u"--pictures"_s));
  EXPECT_TRUE(ended.out.contains(u"FILE.ui"_s));
}

TEST_F(Command, UnknownArgumentsAreRefused) {
  EXPECT_EQ(run({u"--picture-everything"_s}).status, 2);
}

TEST_F(Command, TakesAPictureOfEveryViewInEveryLanguage) {
  const Ended ended = run({u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
  // Six views in six languages, and one sheet of each view.
  EXPECT_EQ(pictures(u"shots"_s).size(), 42);
  EXPECT_TRUE(ended.out.contains(u"every text fits in every language"_s)) << ended.out.toStdString();
  EXPECT_TRUE(ended.out.contains(QDir(folder_.filePath(u"shots"_s)).absolutePath()))
      << ended.out.toStdString();
  const QImage french = picture(u"shots/DlgPret-fr.png"_s);
  const QImage german = picture(u"shots/DlgPret-de.png"_s);
  EXPECT_EQ(french.width(), 430);
  EXPECT_EQ(german.width(), 470);
  EXPECT_NE(picture(u"shots/FrmPrincipale-Prets-fr.png"_s), picture(u"shots/FrmPrincipale-Prets-es.png"_s));
}

TEST_F(Command, WithoutAScreenItTakesPicturesUnasked) {
  EXPECT_EQ(run({}).status, 0);
  EXPECT_EQ(pictures(u"pictures"_s).size(), 42);
}

TEST_F(Command, ATextWithoutRoomEndsWithAFailure) {
  const QDir source(QStringLiteral(KOB_DEMO_TEXTS));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(u"texts"_s));
  for (const QString& name : source.entryList(QDir::Files)) {
    QFile from(source.filePath(name));
    QFile to(folder_.filePath(u"texts/"_s + name));
    ASSERT_TRUE(from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly));
    QByteArray text = from.readAll();
    if (name == "factors.txt"_L1) {
      const qsizetype begin = text.indexOf("DlgPret\\lblCaution ");
      ASSERT_GE(begin, 0);
      text.remove(begin, text.indexOf('\n', begin) - begin);
    }
    to.write(text);
  }
  const Ended ended = run({u"--texts"_s, u"texts"_s, u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"DlgPret\\lblCaution [de]: needs "_s)) << ended.errors.toStdString();
}

TEST_F(Command, AMissingTranslationEndsWithAFailure) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir(u"texts"_s));
  const Ended ended = run({u"--texts"_s, u"texts"_s, u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"the table lacks \"Nouveau prêt\" (DlgPret, Caption)"_s))
      << ended.errors.toStdString();
}

TEST_F(Command, APictureThatCannotBeWrittenEndsWithAFailure) {
  QFile blocking(folder_.filePath(u"shots"_s));
  ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
  const Ended ended = run({u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"the folder cannot be made"_s)) << ended.errors.toStdString();
}

TEST_F(Command, ItsTextsAreKeptInAFile) {
  const Ended first = run({u"--pictures"_s, u"first"_s, u"--model"_s, u"demo.trad"_s});
  EXPECT_EQ(first.status, 0) << first.errors.toStdString();
  EXPECT_TRUE(first.out.contains(u"written to "_s + folder_.filePath(u"demo.trad"_s)))
      << first.out.toStdString();
  const Ended second = run({u"--pictures"_s, u"second"_s, u"--model"_s, u"demo.trad"_s});
  EXPECT_EQ(second.status, 0) << second.errors.toStdString();
  EXPECT_TRUE(second.out.contains(u"Filled:    0 texts in 5 languages, 0 left and width factors"_s))
      << second.out.toStdString();
  for (const QString& name : pictures(u"first"_s)) {
    EXPECT_EQ(picture(u"first/"_s + name), picture(u"second/"_s + name)) << name.toStdString();
  }
}

TEST_F(Command, TheFileIsInTheCurrentFolderUnlessItIsNamed) {
  EXPECT_EQ(run({u"--pictures"_s, u"shots"_s}).status, 0);
  EXPECT_TRUE(QFile::exists(folder_.filePath(u"kobdemo.trad"_s)));
}

TEST_F(Command, AFileThatCannotBeReadIsLeftAlone) {
  const QString name = folder_.filePath(u"demo.trad"_s);
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Bonjour");
  file.close();
  const Ended ended = run({u"--pictures"_s, u"shots"_s, u"--model"_s, u"demo.trad"_s});
  EXPECT_EQ(ended.status, 3);
  EXPECT_TRUE(ended.errors.contains(u"Erreur de chargement du modèle"_s)) << ended.errors.toStdString();
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), QByteArray("Bonjour"));
}

TEST_F(Command, AFileThatCannotBeWrittenEndsWithAFailure) {
  const Ended ended = run({u"--pictures"_s, u"shots"_s, u"--model"_s, u"nowhere/demo.trad"_s});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.contains(u"Erreur de sauvegarde du modèle"_s)) << ended.errors.toStdString();
}

TEST_F(Command, TakesAPictureOfADesignerForm) {
  const Ended ended = run({QStringLiteral(KOB_DEMO_FORMS "/reservation.ui"), u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
  EXPECT_EQ(pictures(u"shots"_s), QStringList(u"reservation.png"_s));
}

TEST_F(Command, ADesignerFormThatCannotBeLoadedHasAStatusOfItsOwn) {
  const QString broken = QStringLiteral(KOB_DEMO_FORMS "/cut.ui");
  const Ended ended =
      run({broken, QStringLiteral(KOB_DEMO_FORMS "/reservation.ui"), u"--pictures"_s, u"shots"_s});
  EXPECT_EQ(ended.status, 3);
  EXPECT_TRUE(ended.errors.contains(u"kobdemo: "_s + broken + u": "_s)) << ended.errors.toStdString();
  EXPECT_EQ(pictures(u"shots"_s), QStringList(u"reservation.png"_s));
}

}  // namespace
