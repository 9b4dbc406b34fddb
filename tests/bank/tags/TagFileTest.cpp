// SPDX-License-Identifier: MIT
#include "bank/tags/TagFile.h"
#include "likeness/Shingles.h"
#include "platform/posix/PosixFiles.h"
#include "support/TemporaryFolder.h"
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis::test {
namespace {

using Tags = std::vector<std::u16string>;

std::string Key(std::size_t number) {
  std::string key(32, '0');
  key.back() = static_cast<char>('0' + number % 10);
  key[30] = static_cast<char>('a' + number / 10 % 6);
  return key;
}

TagChange Adding(const std::string& key, const Tags& tags) {
  return {key, u"Which metal\r\nconducts  best?", {}, tags, {}};
}

class TagFileTest : public testing::Test {
 protected:
  Tags TagsAt(const std::string& key) {
    TagResult result;
    const TagEntries entries = file.Read(result);
    EXPECT_TRUE(result.IsDone()) << result.reason;
    const auto found = entries.find(key);
    return found == entries.end() ? Tags() : found->second.tags;
  }
  std::string Bytes() const { return ReadBytes(file.Path()); }

  TemporaryFolder folder;
  PosixFiles files;
  TagFile file{folder.Path(), files};
};

TEST_F(TagFileTest, IsForPeopleToo) {
  const QuestionSketch sketch(Shingles(u"which metal conducts best"));
  TagChange change = Adding(Key(1), {u" class:8b ", u"Mitosis", u"mitosis", u"", u"two\n lines"});
  change.sketch = sketch;
  ASSERT_TRUE(file.Change({change, Adding(Key(0), {u"光合作用"})}).IsDone());
  EXPECT_EQ(Bytes(),
            "{\n  \"form\": 1,\n  \"questions\": {\n    \"" + Key(0) +
                "\": {\n      \"question\": \"Which metal conducts best?\",\n      \"tags\": [\n        "
                "\"光合作用\"\n      ]\n    },\n    \"" +
                Key(1) + "\": {\n      \"question\": \"Which metal conducts best?\",\n      \"sketch\": \"" +
                ShortSketch(sketch).Digits() +
                "\",\n      \"tags\": [\n        \"Mitosis\",\n        \"class:8b\",\n        \"two "
                "lines\"\n      ]\n    }\n  }\n}\n");
  TagChange removal = Adding(Key(1), {});
  removal.remove = {u"MITOSIS", u"absent", u"two lines", u"class:8B"};
  ASSERT_TRUE(file.Change({removal}).IsDone());
  EXPECT_EQ(Bytes().find(Key(1)), std::string::npos);
}

TEST_F(TagFileTest, KeepsWhatItDoesNotKnow) {
  WriteBytes(file.Path(), "\xEF\xBB\xBF{\"by\": \"Anna\", \"questions\": {\"mine\": {\"tags\": [\"x\"]}, \"" +
                              Key(1) +
                              "\": {\"color\": [1, {\"a\": null}], \"tags\": [\"b\", \"a\", \"A\"]}}}");
  EXPECT_EQ(TagsAt(Key(1)), (Tags{u"a", u"b"}));
  TagChange change = Adding(Key(1), {});
  change.remove = {u"a", u"b"};
  ASSERT_TRUE(file.Change({change, Adding(Key(2), {u"c"})}).IsDone());
  for (const char* kept : {"\"by\": \"Anna\"", "\"mine\"", "\"color\"", "\"a\": null"})
    EXPECT_NE(Bytes().find(kept), std::string::npos) << kept;
  EXPECT_EQ(TagsAt(Key(1)), Tags());
  EXPECT_EQ(TagsAt(Key(2)), Tags{u"c"});
}

TEST_F(TagFileTest, IsNotOverwrittenWhenItIsDamaged) {
  const std::string damaged[] = {"{\"form\": 1",
                                 "[]",
                                 "\xFF\xFE",
                                 "{\"form\": \"1\"}",
                                 "{\"questions\": []}",
                                 "{\"questions\": {\"a\": 1}}",
                                 "{\"questions\": {\"a\": {\"tags\": \"b\"}}}",
                                 "{\"questions\": {\"a\": {\"tags\": [1]}}}",
                                 "{\"a\": \"\\ud800\"}",
                                 std::string(200'000, '['),
                                 "{\"a\": " + std::string(60, '[') + std::string(60, ']') + "}"};
  int number = 0;
  for (const std::string& bytes : damaged) {
    WriteBytes(file.Path(), bytes);
    const TagResult result = file.Change({Adding(Key(1), {u"a"})});
    EXPECT_EQ(result.outcome, TagOutcome::Damaged) << bytes.substr(0, 50);
    EXPECT_FALSE(result.reason.empty());
    EXPECT_EQ(Bytes(), bytes);
    std::filesystem::path aside;
    EXPECT_TRUE(file.KeepAside(aside).IsDone());
    EXPECT_EQ(aside.filename(), "quorvantis-tags.damaged-" + std::to_string(++number) + ".json");
    EXPECT_EQ(ReadBytes(aside), bytes);
    EXPECT_FALSE(std::filesystem::exists(file.Path()));
    EXPECT_TRUE(file.KeepAside(aside).IsDone());
    EXPECT_TRUE(aside.empty());
  }
  WriteBytes(file.Path(), "{\"form\": 2, \"questions\": {\"" + Key(1) + "\": {\"tags\": [\"a\"]}}}");
  TagResult result;
  EXPECT_EQ(file.Read(result).size(), 1U);
  EXPECT_EQ(result.outcome, TagOutcome::Newer);
  EXPECT_EQ(file.Change({Adding(Key(1), {u"b"})}).outcome, TagOutcome::Newer);
  std::filesystem::remove(file.Path());
  std::filesystem::create_directory(file.Path());
  EXPECT_NE(file.Change({Adding(Key(1), {u"a"})}).outcome, TagOutcome::Done);
  EXPECT_NE(TagFile(folder / "gone", files).Change({Adding(Key(1), {u"a"})}).outcome, TagOutcome::Done);
}

TEST_F(TagFileTest, LosesNothingWhenSeveralWrite) {
  constexpr int kPrograms = 3;
  constexpr int kChanges = 30;
  for (int program = 0; program < kPrograms; ++program) {
    if (::fork() != 0) continue;
    for (int i = 0; i < kChanges; ++i) {
      const std::u16string tag{static_cast<char16_t>(u'a' + program), static_cast<char16_t>(u'A' + i)};
      if (!file.Change({Adding(Key(static_cast<std::size_t>(i) % 4), {tag})}).IsDone()) ::_exit(1);
    }
    ::_exit(0);
  }
  for (int program = 0; program < kPrograms; ++program) {
    int status = 0;
    ASSERT_GT(::wait(&status), 0);
    EXPECT_EQ(status, 0);
  }
  std::size_t tags = 0;
  for (std::size_t i = 0; i < 4; ++i) tags += TagsAt(Key(i)).size();
  EXPECT_EQ(tags, std::size_t{kPrograms * kChanges});
  EXPECT_EQ(CountEntries(folder.Path()), 1);
}

TEST_F(TagFileTest, FindsTheTagsOfAnEditedQuestion) {
  const std::u16string text = u"which of these metals conducts electricity and heat best at room temperature";
  const QuestionSketch before{Shingles(text)};
  const QuestionSketch after{Shingles(text + u" today")};
  const QuestionSketch other{Shingles(u"name the longest river of africa and the sea into which it flows")};
  TagChange change = Adding(Key(1), {u"metals"});
  change.sketch = before;
  ASSERT_TRUE(file.Change({change}).IsDone());
  TagResult result;
  const auto found = FindTags(file.Read(result), Key(2), after);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->key, Key(1));
  EXPECT_FALSE(FindTags(file.Read(result), Key(2), other));
  TagChange edited = Adding(Key(2), {u"easy"});
  edited.sketch = after;
  ASSERT_TRUE(file.Carry(found->key, edited).IsDone());
  EXPECT_EQ(TagsAt(Key(2)), (Tags{u"easy", u"metals"}));
  EXPECT_EQ(TagsAt(Key(1)), Tags{u"metals"});
}

}  // namespace
}  // namespace quorvantis::test
