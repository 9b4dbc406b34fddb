// SPDX-License-Identifier: MIT
// Another program's parser of GIFT finds in exported exams what they have.
#include "Players.h"
#include "RandomExam.h"
#include "exchange/Formats.h"
#include "exchange/form/MoodleConventions.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "text/Utf.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

constexpr unsigned kExams = 300;

std::string TextIn(const QJsonValue& value, const QString& outerFormat) {
  const QJsonObject text = value.toObject();
  const QString format = text["format"].toString(outerFormat);
  const std::u16string characters = text["text"].toString().toStdU16String();
  return Utf16ToUtf8(format == "html" ? ReadHtml(characters).text : ReadExamText(characters).text);
}

std::string PlainIn(const QJsonValue& value) {
  return value.toObject()["text"].toString().toStdString();
}

/// The parser reads any white space as one blank, hard blanks, too.
std::string WithPlainBlanks(const std::string& text) {
  return QString::fromStdString(text).simplified().toStdString();
}

/// What the parser has understood, one line a part.
std::string Understood(const QJsonObject& question) {
  const QString type = question["type"].toString();
  if (type == "Category") return "title " + question["title"].toString().toStdString() + "\n";
  const QString format = question["stem"].toObject()["format"].toString();
  std::string text = type.toStdString() + " " + TextIn(question["stem"], format) + "\n";
  for (const QJsonValue& choice : question["choices"].toArray()) {
    const double weight = choice["weight"].toDouble();
    const bool isRight = weight > 0 || (choice["weight"].isNull() && choice["isCorrect"].toBool());
    const std::string shown = type == "MC" ? TextIn(choice["text"], format) : PlainIn(choice["text"]);
    text.append(isRight ? "+ " : "- ").append(shown).append("\n");
  }
  if (type == "Essay") text += "model " + TextIn(question["globalFeedback"], format) + "\n";
  return text;
}

std::string Meant(const ExchangedQuestion& question) {
  const std::string text = " " + Utf16ToUtf8(question.text) + "\n";
  if (question.kind == QuestionKind::Essay)
    return "Essay" + text + "model " + Utf16ToUtf8(question.modelAnswer) + "\n";
  std::string lines = (question.kind == QuestionKind::Choice ? "MC" : "Short") + text;
  for (const ExchangedOption& option : question.options)
    lines.append(option.isRight ? "+ " : "- ").append(Utf16ToUtf8(option.text)).append("\n");
  for (const BlankAnswers& blank : question.blanks) {
    for (const std::u16string& answer : blank)
      lines += "+ " + Utf16ToUtf8(WithProtectedStars(ExamTextToPlain(answer))) + "\n";
  }
  return lines;
}

TEST(GiftParser, FindsWhatIsMeant) {
  if (!HasPlayers()) GTEST_SKIP() << "see scripts/install-exchange-players";
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "gift");
  const FormatRow& gift = *FormatNamed("gift");
  InterruptedProgress progress;
  std::vector<ExchangedExam> exams;
  for (unsigned seed = 1; seed <= kExams; ++seed) {
    ExchangeNotes notes;
    exams.push_back(HeldExam(gift.held, RandomExam(folder.Path(), seed).Make(6), notes));
    WriteBytes(folder / "gift" / std::to_string(1000 + seed),
               gift.writer()->Write(exams.back(), BuiltInStrings(), progress));
  }
  const QJsonArray parsed =
      RunNode(kPlayerScripts / "parse-gift.cjs",
              {PlayerPath(kPlayers / "node_modules" / "gift-pegjs"), PlayerPath(folder / "gift")})
          .array();
  ASSERT_EQ(parsed.size(), static_cast<int>(kExams));
  for (unsigned i = 0; i < kExams; ++i) {
    const QJsonValue file = parsed[static_cast<qsizetype>(i)];
    const std::string written = ReadBytes(folder / "gift" / std::to_string(1001 + i));
    if (!file.isArray()) ADD_FAILURE() << file["error"].toString().toStdString() << "\n" << written;
    std::string understood;
    for (const QJsonValue& question : file.toArray()) {
      if (question["type"] != "Category") understood += Understood(question.toObject());
    }
    std::string meant;
    for (const ExchangedQuestion& question : exams[i].questions) meant += Meant(question);
    ASSERT_EQ(WithPlainBlanks(understood), WithPlainBlanks(meant)) << written;
  }
}

}  // namespace
}  // namespace quorvantis::test
