// SPDX-License-Identifier: MIT
// Exported files keep the rules of their formats, whatever is exported; and the rules find what is wrong.
#include "FormatRules.h"
#include "exchange/Formats.h"
#include "exchange/RandomExam.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

constexpr unsigned kJudgedExams = 100;

struct JudgedFormat {
  std::string_view name;
  Faults (*judge)(const PackageParts& parts);
};

constexpr JudgedFormat kJudged[] = {
    {"qti", CheckQtiPackage}, {"canvas", CheckCanvasPackage}, {"moodle", CheckMoodleXml}};

const JudgedFormat& Judged(std::string_view name) {
  return *std::ranges::find(kJudged, name, &JudgedFormat::name);
}

std::string Joined(const Faults& faults) {
  std::string text;
  for (const std::string& fault : faults) text += fault + "\n";
  return text;
}

class Structure : public testing::Test {
 protected:
  PackageParts Export(std::string_view name, const ExchangedExam& exam) {
    const FormatRow& format = *FormatNamed(name);
    ExchangeNotes notes;
    InterruptedProgress progress;
    return PartsOf(WriteBytes(folder / "exported", format.writer()->Write(HeldExam(format.held, exam, notes),
                                                                          BuiltInStrings(), progress)));
  }

  TemporaryFolder folder;
};

TEST_F(Structure, IsKeptByRandomExams) {
  for (const JudgedFormat& format : kJudged) {
    for (unsigned seed = 1; seed <= kJudgedExams; ++seed) {
      const PackageParts parts = Export(format.name, RandomExam(folder.Path(), seed).Make(6));
      const Faults faults = format.judge(parts);
      ASSERT_TRUE(faults.empty()) << format.name << " " << seed << "\n" << Joined(faults);
    }
  }
}

/// An exam with every kind of question.
ExchangedExam SampleExam(const std::filesystem::path& folder) {
  const ExchangedFile picture{u"cell.png", WriteBytes(folder / "cell.png", "bytes")};
  using enum QuestionKind;
  ExchangedExam exam;
  exam.title = u"Cells";
  exam.questions = {{1, Choice, u"<b>One</b> is right", {{u"yes", true}, {u"no", false}}, {}, {}, {}, {}},
                    {2, Choice, u"Two", {{u"a", true}, {u"b", true}, {u"c", false}}, {}, {}, {}, {}},
                    {3, FillIn, u"Any of", {}, {{u"red", u"rot"}}, {}, {}, {}},
                    {4, FillIn, u"The ____ and the ____", {}, {{u"sun"}, {u"moon"}}, {}, {}, 2.0},
                    {5, Essay, u"Tell", {}, {}, u"all", {picture}, {}},
                    {6, Oral, u"Say", {}, {}, {}, {}, {}}};
  return exam;
}

/// What is put in place of what in one of the files, and a part of what is told then.
struct Breakage {
  std::string_view format;
  std::string_view part;
  std::string_view old;
  std::string_view replacement;
  std::string_view fault;
};

constexpr Breakage kBreakages[] = {
    {"qti", "imsmanifest.xml", "<file href=\"items/item001.xml\"/>", "", "does not list its own file"},
    {"qti", "imsmanifest.xml", "<file href=\"media/item005/cell.png\"/>", "", "does not list media/item005"},
    {"qti", "imsmanifest.xml", "identifierref=\"item001\"", "identifierref=\"item1\"",
     "is no resource: item1"},
    {"qti", "imsmanifest.xml", "identifier=\"item002\"", "identifier=\"item001\"", "identifier of another"},
    {"qti", "imsmanifest.xml", "cell.png", "cells.png", "is missing: media/item005/cells.png"},
    {"qti", "imsmanifest.xml", "identifier=\"item003\"", "identifier=\"3\"", "has identifier \"3\""},
    {"qti", "test.xml", "items/item001.xml", "items/item009.xml", "other items"},
    {"qti", "test.xml", "\"WEIGHT\" value=\"2\"", "\"W\" value=\"2\"", "lacks the weight WEIGHT"},
    {"qti", "test.xml", " visible=\"true\"", "", "lacks the attribute visible"},
    {"qti", "items/item001.xml", "<itemBody>", "<itemBody><em>x</em>", "has no place for em"},
    {"qti", "items/item001.xml", "<b>One</b>", "<b><p>One</p></b>", "has no place for p"},
    {"qti", "items/item001.xml", "<b>One</b>", "<u>One</u>", "has no place for u"},
    {"qti", "items/item001.xml", "<b>One", "<b onclick=\"x\">One", "has the attribute onclick"},
    {"qti", "items/item001.xml", "<value>option1</value>", "<value>option7</value>", "is no choice: option7"},
    {"qti", "items/item001.xml", "<value>option1", "<value>option2</value><value>option1",
     "more right choices"},
    {"qti", "items/item001.xml", "identifier=\"option2\"", "identifier=\"option1\"", "identifier of another"},
    {"qti", "items/item001.xml", "cardinality=\"single\" baseType=\"identifier\"",
     "cardinality=\"multiple\" "
     "baseType=\"identifier\"",
     "is multiple identifier"},
    {"qti", "items/item001.xml", "match_correct", "map_response", "has no mapping: RESPONSE"},
    {"qti", "items/item001.xml", "match_correct", "match_wrong", "unknown template"},
    {"qti", "items/item001.xml", "responseIdentifier=\"RESPONSE\"", "responseIdentifier=\"R\"",
     "no declared response"},
    {"qti", "items/item001.xml", "identifier=\"SCORE\"", "identifier=\"POINTS\"", "not declared: SCORE"},
    {"qti", "items/item001.xml", "imsqti_v2p1\" xmlns:xsi", "imsqti_v2p0\" xmlns:xsi", "of another language"},
    {"qti", "items/item003.xml", "mapKey=\"rot\"", "mapKey=\"red\"", "is there twice"},
    {"qti", "items/item004.xml", "<mapResponse identifier=\"RESPONSE2\"/>",
     "<mapResponse identifier=\"R2\"/>", "R2"},
    {"qti", "items/item004.xml", "<textEntryInteraction responseIdentifier=\"RESPONSE2\"", "<span",
     "never asks for"},
    {"qti", "items/item005.xml", "../media/item005/cell.png", "../media/cell.png", "not listed"},
    {"qti", "items/item005.xml", " alt=\"cell.png\"", "", "lacks the attribute alt"},
    {"qti", "items/item005.xml", "view=\"scorer\"", "view=\"pupil\"", "has view \"pupil\""},
    {"canvas", "imsmanifest.xml", "identifier=\"manifest\"", "identifier=\"7 up\"", "has identifier"},
    {"canvas", "assessment/assessment.xml", "short_answer_question", "long_answer_question", "unknown type"},
    {"canvas", "assessment/assessment.xml", "essay_question", "short_answer_question",
     "number of right answers"},
    {"canvas", "assessment/assessment.xml", "<varequal respident=\"response1\">1001",
     "<varequal "
     "respident=\"response1\">1007",
     "cannot be answered: 1007"},
    {"canvas", "assessment/assessment.xml", "\"response1\">1001", "\"response2\">1001", "cannot be answered"},
    {"canvas", "assessment/assessment.xml", "[blank2]", "[blank3]", "not one place for blank2"},
    {"canvas", "assessment/assessment.xml", "varname=\"SCORE\">50", "varname=\"SCORE\">40", "not all points"},
    {"canvas", "assessment/assessment.xml", "rcardinality=\"Multiple\"", "rcardinality=\"Single\"",
     "counts wrongly"},
    {"canvas", "assessment/assessment.xml", "linkrefid=\"general_fb\"", "linkrefid=\"fb\"", "no feedback fb"},
    {"canvas", "assessment/assessment.xml", "$IMS-CC-FILEBASE$", "https://example.org", "out of the package"},
    {"canvas", "assessment/assessment.xml", "&lt;b&gt;One", "&lt;b onload=\"x\"&gt;One",
     "the attribute onload"},
    {"canvas", "assessment/assessment.xml", "&lt;b&gt;One", "&lt;script&gt;One", "body"},
    {"canvas", "assessment/assessment.xml", "points_possible", "points", "has no points"},
    {"moodle", "", "type=\"shortanswer\"", "type=\"short\"", "has type \"short\""},
    {"moodle", "", "fraction=\"50\"", "fraction=\"51\"", "unknown share"},
    {"moodle", "", "fraction=\"50\"", "fraction=\"25\"", "not all points"},
    {"moodle", "", "<single>true", "<single>yes", "the single yes"},
    {"moodle", "", ">ABCD<", ">abcd<", "the answernumbering abcd"},
    {"moodle", "", "<defaultgrade>2", "<defaultgrade>-2", "the score -2"},
    {"moodle", "", "name=\"cell.png\"", "name=\"c/ell.png\"", "whose name changes"},
    {"moodle", "", "@@PLUGINFILE@@/cell.png", "@@PLUGINFILE@@/x.png", "that nothing shows"},
    {"moodle", "", "path=\"/\" encoding=\"base64\">", "path=\"/\" encoding=\"base64\">!", "of other bytes"},
    {"moodle", "", "encoding=\"base64\"", "encoding=\"hex\"", "has encoding"},
    {"moodle", "", ":SHORTANSWER:=sun", ":SHORT:=sun", "without its parts"},
    {"moodle", "", ":=sun}", ":=su\"n}", "ends early"},
    {"moodle", "", ":=moon}", ":=moon", "without an end"},
    {"moodle", "", "<attachments>1", "<attachments>0", "more files than can be handed in"},
    {"moodle", "", "$course$/top/", "", "no category"},
    {"moodle", "", "<usecase>", "<case>", "at"},
};

TEST_F(Structure, IsFoundBroken) {
  const ExchangedExam exam = SampleExam(folder.Path());
  for (const JudgedFormat& format : kJudged) EXPECT_EQ(Joined(format.judge(Export(format.name, exam))), "");
  for (const Breakage& breakage : kBreakages) {
    PackageParts parts = Export(breakage.format, exam);
    ASSERT_TRUE(parts.contains(std::string(breakage.part))) << breakage.part;
    std::string& bytes = parts[std::string(breakage.part)];
    const std::size_t at = bytes.find(breakage.old);
    ASSERT_NE(at, bytes.npos) << breakage.format << " " << breakage.part << " has no " << breakage.old << "\n"
                              << bytes;
    bytes.replace(at, breakage.old.size(), breakage.replacement);
    const std::string told = Joined(Judged(breakage.format).judge(parts));
    EXPECT_NE(told.find(breakage.fault), told.npos)
        << breakage.part << ": " << breakage.replacement << " for " << breakage.old << " told " << told;
  }
  for (const std::string_view name : {"qti", "canvas"}) {
    PackageParts parts = Export(name, exam);
    parts["more.txt"] = "x";
    EXPECT_EQ(Joined(Judged(name).judge(parts)), "the manifest does not list more.txt\n");
  }
}

}  // namespace
}  // namespace quorvantis::test
