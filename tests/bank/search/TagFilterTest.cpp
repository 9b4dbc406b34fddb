// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "bank/index/FoldedText.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"
#include "text/SeededRandom.h"
#include "text/Utf.h"

#include <algorithm>
#include <chrono>
#include <map>

namespace quorvantis::test {
namespace {

using TagLists = std::vector<std::u16string>;

/// Among them some that begin like others, differ by what a search does not see, or look like filters.
constexpr std::u16string_view kSomeTags[] = {u"cell",
                                             u"cells",
                                             u"Zell\u00E9",
                                             u"class:8b",
                                             u"difficulty:2",
                                             u"two words",
                                             u"\u7EC6\u80DE",
                                             u"\u7EC6\u80DE\u819C",
                                             u"\u062E\u0644\u064A\u0629",
                                             u"\u043A\u043B\u0435\u0442\u043A\u0430",
                                             u"-x",
                                             u"C++",
                                             u"has:tags",
                                             u"\U0001F600",
                                             u"100%_"};

class TagFilter : public BankTest {
 protected:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_.Below(limit)); }
  std::u16string_view AnyTag() { return kSomeTags[Below(std::size(kSomeTags))]; }

  /// Exams in three folders, with the same questions in several of them.
  void WriteExams() {
    for (const char* name : {"a", "a/deep", "b"}) {
      for (int number = 0; number < 3; ++number) {
        std::vector<ExamQuestion> questions;
        for (int i = 0; i < 12; ++i)
          questions.push_back(QuestionWith(u"Question number " + std::u16string(1 + Below(25), u'x')));
        WriteExam(exams / name / (std::to_string(number) + ".exm"), u"", questions);
      }
    }
    EXPECT_FALSE(Update().problem.IsAnything());
    for (const BankHit& hit : Find(u"", 500).hits) all_.push_back(hit.question);
  }

  /// Gives and takes tags.
  void ChangeTags() {
    std::map<std::filesystem::path, std::vector<TagChange>> changes;
    for (int i = 0; i < 30; ++i) {
      const BankQuestion& question = all_[Below(all_.size())];
      TagChange change{question.key, question.text, {}, {}, {}};
      (Below(4) == 0 ? change.remove : change.add).emplace_back(AnyTag());
      changes[question.exam.path.parent_path()].push_back(change);
    }
    for (const auto& [tagged, some] : changes) ASSERT_TRUE(TagFile(tagged, files).Change(some).IsDone());
  }

  TagLists TagsOf(const BankQuestion& question) {
    TagResult result;
    const TagEntries entries = TagFile(question.exam.path.parent_path(), files).Read(result);
    const auto entry = entries.find(question.key);
    return entry == entries.end() ? TagLists() : entry->second.tags;
  }

  static bool Allows(const BankQuery& query, const TagLists& tags) {
    if (query.hasTags && *query.hasTags == tags.empty()) return false;
    return std::all_of(query.tags.begin(), query.tags.end(), [&tags](const BankTag& wanted) {
      return std::any_of(tags.begin(), tags.end(), [&wanted](const std::u16string& tag) {
               const std::u16string folded = FoldForSearch(tag);
               return folded == wanted.folded || (wanted.isBegun && folded.starts_with(wanted.folded));
             }) != wanted.isExcluded;
    });
  }

  BankQuery AnyQuery() {
    BankQuery query;
    for (std::size_t left = Below(3); left > 0; --left) {
      const std::u16string folded = FoldForSearch(AnyTag());
      query.tags.push_back({Below(3) == 0 ? folded.substr(0, 1 + Below(folded.size())) : folded,
                            Below(3) == 0, Below(3) == 0});
    }
    if (Below(3) == 0) query.hasTags = Below(2) == 0;
    if (Below(2) == 0) query.terms.push_back({std::u16string(3 + Below(20), u'x')});
    return query;
  }

  SeededRandom random_{11};
  std::vector<BankQuestion> all_;
};

TEST_F(TagFilter, FindsWhatAScanOfAllTagsFinds) {
  WriteExams();
  ASSERT_EQ(all_.size(), 108U);
  const auto tags = std::make_shared<FolderTags>(files);
  BankSearch search(*index, world.services, digest, tags);
  std::size_t found = 0;
  for (int i = 0; i < 300; ++i) {
    if (i % 20 == 0) ChangeTags();  // what is remembered of the files must not be believed
    const BankQuery query = AnyQuery();
    std::map<std::pair<std::filesystem::path, int>, TagLists> expected;
    for (const BankQuestion& question : all_) {
      const bool hasWords = std::all_of(query.terms.begin(), query.terms.end(), [&](const BankTerm& term) {
        return question.text.find(term.folded) != question.text.npos;
      });
      const TagLists own = TagsOf(question);
      if (hasWords && Allows(query, own)) expected[{question.exam.path, question.number}] = own;
    }
    const BankHits hits = search.Find(query, 500);
    std::map<std::pair<std::filesystem::path, int>, TagLists> actual;
    for (const BankHit& hit : hits.hits) actual[{hit.question.exam.path, hit.question.number}] = hit.tags;
    ASSERT_EQ(actual, expected) << "query " << i;
    ASSERT_EQ(hits.total, expected.size());
    ASSERT_EQ(search.FindAll(query, problem).size(), expected.size());
    found += query.tags.empty() ? 0 : actual.size();
  }
  EXPECT_GT(found, 500U) << "the queries find something";
}

TEST_F(TagFilter, TellsOfFilesThatCannotBeRead) {
  WriteExam(exams / "a.exm", u"", {QuestionWith(u"Why?")});
  Update();
  const std::filesystem::path file = WriteBytes(exams / kTagFileName, "{");
  EXPECT_TRUE(Find(u"why").unreadTags.empty()) << "no tags were asked for";
  const BankHits hits = Find(u"-tag:x");
  EXPECT_EQ(hits.hits.size(), 1U);
  ASSERT_EQ(hits.unreadTags.size(), 1U);
  EXPECT_EQ(hits.unreadTags.front().file, file);
  EXPECT_EQ(CountOf(u"has:tags"), 0U);
}

/// Changes within the grain of the file system's clock show neither in the time nor in the size of the file.
TEST_F(TagFilter, SeesChangesWithoutANewStamp) {
  const std::filesystem::path file = exams / kTagFileName;
  const std::string key(32, 'a');
  const auto write = [&](const std::string& tag) {
    WriteBytes(file, "{\"questions\": {\"" + key + "\": {\"tags\": [\"" + tag + "\"]}}}");
  };
  FolderTags tags(files);
  write("one");
  const auto time = std::filesystem::last_write_time(file);
  EXPECT_EQ(tags.Of(exams)->Of(key), TagLists{u"one"});
  write("two");
  std::filesystem::last_write_time(file, time);
  EXPECT_EQ(tags.Of(exams)->Of(key), TagLists{u"two"});
  std::filesystem::last_write_time(file, time - std::chrono::hours(1));
  const auto settled = tags.Of(exams);
  EXPECT_EQ(tags.Of(exams), settled) << "read once";
  std::filesystem::remove(file);
  EXPECT_TRUE(tags.Of(exams)->Entries().empty());
}

class ForeignWords : public StringTable {
 public:
  std::u16string Text(int number) const override {
    if (number == text_id::kQueryNames) return u"Genre avec \u6807\u7B7E kind";
    if (number == text_id::kQueryKinds) return u"choix oral";
    return number == text_id::kQueryParts ? u"pi\u00E8ces cl\u00E9 \u0648\u0633\u0648\u0645" : u"";
  }
};

TEST(QueryWords, AreTranslatedAndEnglish) {
  const ForeignWords strings;
  const QueryWords words(strings);
  struct Row {
    std::u16string_view foreign;
    std::u16string_view english;
  };
  const Row rows[] = {
      {u"genre:Choix", u"kind:choice"},
      {u"GENRE\uFF1Afillin", u"kind:fillin"},
      {u"kind:oral", u"kind:oral"},  // not the translation of another word
      {u"-avec:cle avec:\"pieces\" avec:\u0648\u0633\u0648\u0645", u"-has:key has:files has:tags"},
      {u"\u6807\u7B7E:cle -\u6807\u7B7E:\"a b\" \u6807\u7B7E:class:8b", u"tag:cle -tag:\"a b\" tag:class:8b"},
      {u"avec:choix", u"avec:choix"},
      {u"genre: score:2 exam:Choix", u"genre: score:2 exam:Choix"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(ParseBankQuery(row.foreign, false, words), ParseBankQuery(row.english))
        << Utf16ToUtf8(row.foreign);
  EXPECT_TRUE(ParseBankQuery(u"genre:", true, words).IsEmpty()) << "a filter that is being typed";
  EXPECT_TRUE(ParseBankQuery(u"tag:ce", true).tags.at(0).isBegun);
  EXPECT_FALSE(ParseBankQuery(u"tag:\"ce\"", true).tags.at(0).isBegun);
}

}  // namespace
}  // namespace quorvantis::test
