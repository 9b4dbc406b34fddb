// SPDX-License-Identifier: MIT
// Another program shows every exported item, and scores answers as the exam does.
#include "Players.h"
#include "RandomExam.h"
#include "exchange/Formats.h"
#include "platform/documents/ZipPackage.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "text/Utf.h"

#include <QElapsedTimer>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <gtest/gtest.h>

#include <iostream>
#include <memory>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kPlayedExams = 12;
constexpr int kLongestPlay = 240'000;  // in milliseconds, on a busy machine

QString Shown(const std::u16string& text) {
  return QString::fromStdU16String(ExamTextToPlain(text));
}

QJsonObject Try(const QJsonArray& given, double score) {
  return {{"given", given}, {"score", score}};
}

/// All right options, and each of these with one more or one less.
QJsonArray TriesOfChoice(const ExchangedQuestion& question) {
  QJsonArray rights;
  for (std::size_t i = 0; i < question.options.size(); ++i) {
    if (question.options[i].isRight) rights.append("option" + QString::number(i + 1));
  }
  if (rights.isEmpty()) return {};
  QJsonArray tries{Try(rights, 1)};
  for (std::size_t i = 0; i < question.options.size(); ++i) {
    if (question.options[i].isRight) continue;
    const QString wrong = "option" + QString::number(i + 1);
    tries.append(Try({wrong}, 0));
    QJsonArray tooMany = rights;
    tooMany.append(wrong);
    if (rights.size() > 1) tries.append(Try(tooMany, 0));
  }
  if (rights.size() > 1) {
    rights.removeLast();
    tries.append(Try(rights, 0));
  }
  return tries;
}

/// Each right answer, in capitals, too, and one of them wrong.
QJsonArray TriesOfFillIn(const ExchangedQuestion& question) {
  QJsonArray tries;
  if (question.blanks.empty()) return tries;
  if (question.blanks.size() == 1) {
    for (const std::u16string& answer : question.blanks[0]) tries.append(Try({Shown(answer)}, 1));
    tries.append(Try({Shown(question.blanks[0][0]).toUpper()}, 1));
    tries.append(Try({Shown(question.blanks[0][0]) + "x"}, 0));
    return tries;
  }
  QJsonArray rights;
  for (const BlankAnswers& blank : question.blanks) rights.append(Shown(blank[0]));
  tries.append(Try(rights, 1));
  rights[0] = "wrong";
  tries.append(Try(rights, 1 - 1.0 / static_cast<double>(question.blanks.size())));
  return tries;
}

QJsonArray InteractionsOf(const ExchangedQuestion& question) {
  switch (question.kind) {
    case QuestionKind::Choice:
      return {"qti-choice-interaction"};
    case QuestionKind::FillIn:
      return {"qti-text-entry-interaction"};
    case QuestionKind::Essay:
      return {"qti-extended-text-interaction"};
    case QuestionKind::Oral:
      break;
  }
  return {"qti-upload-interaction"};
}

QJsonObject ItemOf(const ExchangedQuestion& question, const QString& name) {
  const bool isChoice = question.kind == QuestionKind::Choice;
  QJsonArray options;
  for (const ExchangedOption& option : question.options) options.append(Shown(option.text));
  const QString text = Shown(question.text);
  return {{"name", name},
          {"options", options},
          {"fields", static_cast<int>(question.blanks.size())},
          {"pictures", static_cast<int>(question.files.size())},
          {"shows", InteractionsOf(question)},
          {"begin", text.left(text.indexOf("___"))},
          {"tries", isChoice ? TriesOfChoice(question) : TriesOfFillIn(question)}};
}

/// Tells what the player complains of.
class PlayerPage : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

 protected:
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                const QString& source) override {
    if (level == ErrorMessageLevel)
      std::cout << source.toStdString() << ":" << line << ": " << message.toStdString() << "\n";
  }
};

class QtiPlayer : public testing::Test {
 protected:
  /// Adds the items of an exam.
  void Add(const ExchangedExam& exam, const QString& examName) {
    const auto package = WriteBytes(folder / "package.zip",
                                    FormatNamed("qti")->writer()->Write(exam, BuiltInStrings(), progress));
    const ZipPackage zip(package);
    ASSERT_EQ(zip.Opened(), WordResult::Done);
    std::size_t next = 0;
    for (const std::string& name : zip.Names(10'000)) {
      const PackagePart part = zip.Read(name, 1 << 24);
      fs::create_directories((folder / name).parent_path());
      WriteBytes(folder / name, part.bytes);
      if (!name.starts_with("items/")) continue;
      const QString title = examName + " " + QString::fromStdString(name);
      xml.append(QString::fromStdString(part.bytes));
      items.append(ItemOf(exam.questions.at(next++), title));
    }
    ASSERT_EQ(next, exam.questions.size());
  }

  void Upgrade() {
    const QJsonArray upgraded =
        RunNode(kPlayerScripts / "upgrade-items.mjs",
                {PlayerPath(kPlayers / "node_modules/@citolab/qti-convert/dist/qti-converter-node/index.js")},
                QJsonDocument(xml).toJson())
            .array();
    ASSERT_EQ(upgraded.size(), items.size());
    for (qsizetype i = 0; i < items.size(); ++i) {
      QJsonObject item = items[i].toObject();
      item["xml"] = upgraded[i];
      items[i] = item;
    }
  }

  QVariant Evaluate(QWebEnginePage& page, const QString& script) {
    const auto answer = std::make_shared<std::optional<QVariant>>();
    page.runJavaScript(script, [answer](const QVariant& value) { *answer = value; });
    return Wait([&] { return answer->has_value(); }) ? **answer : QVariant();
  }

  static bool Wait(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < kLongestPlay) QTest::qWait(20);
    return condition();
  }

  void Play() {
    fs::create_directories(folder / "items");
    const std::string player =
        (kPlayers / "node_modules/@citolab/qti-components/cdn/index.global.js").string();
    WriteBytes(folder / "items" / "items.js", "play(" + QJsonDocument(items).toJson().toStdString() + ")");
    std::string html = "<!DOCTYPE html><meta charset=utf-8><body>";
    for (const std::string& script :
         {player, (kPlayerScripts / "play-items.js").string(), std::string("items.js")})
      html += "<script src='" + script + "'></script>";
    WriteBytes(folder / "items" / "player.html", html);
    QWebEngineView view;  // only what is shown runs at full speed
    auto* const shown = new PlayerPage(&view);
    view.setPage(shown);
    view.show();
    PlayerPage& page = *shown;
    page.load(QUrl::fromLocalFile(PlayerPath(folder / "items" / "player.html")));
    ASSERT_TRUE(Wait(
        [&] { return Evaluate(page, "window.faults !== null && window.faults !== undefined").toBool(); }));
    for (const QVariant& fault : Evaluate(page, "window.faults").toList())
      ADD_FAILURE() << fault.toString().toStdString();
  }

  TemporaryFolder folder;
  InterruptedProgress progress;
  QJsonArray xml;
  QJsonArray items;
};

TEST_F(QtiPlayer, ShowsAndScoresEveryItem) {
  if (!HasPlayers()) GTEST_SKIP() << "see scripts/install-exchange-players";
  const fs::path picture = folder / "picture.png";
  ASSERT_TRUE(QImage(3, 2, QImage::Format_RGB32).save(PlayerPath(picture)));
  for (unsigned seed = 1; seed <= kPlayedExams; ++seed) {
    ExchangeNotes notes;
    ExchangedExam exam = HeldExam(FormatNamed("qti")->held, RandomExam(folder.Path(), seed).Make(5), notes);
    for (ExchangedQuestion& question : exam.questions) question.files = {{u"a b&é%20#?.png", picture}};
    Add(exam, QString::number(seed));
  }
  Upgrade();
  Play();
}

}  // namespace
}  // namespace quorvantis::test
