// SPDX-License-Identifier: MIT
#include "import/ExamImport.h"
#include "ini/ProfileValues.h"
#include "platform/texts/ProgramTexts.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

class ExamImportTest : public testing::Test {
 protected:
  ExamImport Opened(const std::string& ini) {
    WriteBytes(folder / "i.ini", ini);
    ExamImport import(folder / "i.ini", codePage);
    import.m_strDocPath = folder / "i.ini";
    import.Open();
    return import;
  }

  TemporaryFolder folder;
  TestCodePage codePage;
};

TEST_F(ExamImportTest, ListsRepositoriesInTheirOrder) {
  using Names = std::vector<std::u16string>;
  EXPECT_EQ(Opened("").Repositories(), Names());
  EXPECT_EQ(Opened("[Repository]\nSize=x\n[0]\nName=a").Repositories(), Names());
  EXPECT_EQ(Opened("[REPOSITORY]\nsize=3x\n[2]\nname=a\n[0]\nNAME=c\n").Repositories(),
            (Names{u"c", u"", u"a"}));
  ExamImport many =
      Opened("[Repository]\nSize=2000000000\n[1999999999]\nName=last\n[7]\nName=a\n[08]\nName=b");
  EXPECT_EQ(many.Repositories(), (Names{u"a", u"last"}));
  many.m_strRepository = u"LAST";
  EXPECT_EQ(many.ChosenSection(), 1'999'999'999);
  EXPECT_EQ(Opened("[Repository]\nSize=1001\n[1000]\nName=b").Repositories().at(1000), u"b");
  EXPECT_EQ(Opened("[Repository]\nSize=1\n[0]\nName=\xC0").Repositories(), Names{u"\u0440"});
}

TEST_F(ExamImportTest, SearchesFromTheSecondEntryOn) {
  const std::string ini = "[Repository]\nSize=3\n[0]\nName=Math\n[1]\nName=Art\n[2]\nName=MATH 2\n";
  const struct {
    std::u16string chosen;
    int section;
  } rows[] = {{u"Math", 2}, {u"art", 1}, {u"", 1}, {u"Math 2", 2}, {u"Math 3", -1}};
  for (const auto& row : rows) {
    ExamImport import = Opened(ini);
    import.m_strRepository = row.chosen;
    EXPECT_EQ(import.ChosenSection(), row.section) << testing::PrintToString(row.chosen);
  }
  EXPECT_EQ(Opened("[Repository]\nSize=1\n[0]\nName=Math\n").ChosenSection(), 0);
  EXPECT_EQ(Opened("").ChosenSection(), -1);
}

TEST_F(ExamImportTest, AcceptsWhatIsUsable) {
  const auto result = [this](const std::string& section) {
    return Opened("[Repository]\nSize=1\n[0]\nName=a\n" + section).Accept();
  };
  EXPECT_EQ(result("Pattern=x\nPreAnswer=y\n"), 0);
  EXPECT_EQ(result("Pattern=x\n"), text_id::kWrongImportRules);
  EXPECT_EQ(result("PreAnswer=x\nPattern=\n"), text_id::kWrongImportRules);
  EXPECT_EQ(Opened("[-1]\nPattern=x\nPreAnswer=y\n").Accept(), 0);
  ExamImport import =
      Opened("[Repository]\nSize=1\n[0]\nPattern= x=\"1\" \nPreAnswer=y\nTable=1\nAnswerKey=k\n");
  import.m_strDocPath = folder / "absent";
  EXPECT_EQ(import.Accept(), text_id::kWrongDocumentPath);
  import.m_strDocPath = folder.Path();
  EXPECT_EQ(import.Accept(), 0);
  EXPECT_EQ(import.m_strPattern, u"x=\"1\"");
  EXPECT_EQ(import.m_strTableAnsKey + import.m_strTableQuesKey, u"k");
  EXPECT_EQ(import.m_nTable, 1);
  EXPECT_EQ(Opened("[0]\nPattern=x\nPreAnswer=y\nTable=2").m_nTable, 0);
}

TEST_F(ExamImportTest, CutsValuesTo1023Characters) {
  WriteBytes(folder / "v.ini", "[a]\nlong=" + std::string(1024, 'x') + "\nfits=" + std::string(1023, 'y'));
  const ProfileFile file(folder / "v.ini");
  EXPECT_EQ(ReadProfileString(u"a", u"long", {}, file), std::u16string(1023, u'x'));
  EXPECT_EQ(ReadProfileString(u"a", u"fits", {}, file), std::u16string(1023, u'y'));
  EXPECT_EQ(ReadProfileString(u"a", u"none", u"default", file), u"default");
  EXPECT_EQ(ReadProfileInteger(u"a", u"none", 7, file), 7);
}

}  // namespace
}  // namespace quorvantis::test
