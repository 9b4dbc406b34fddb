// SPDX-License-Identifier: MIT
#include "bank/index/Database.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/desk/BankDesk.h"
#include "examfile/ExamFileWriter.h"
#include "platform/digest/OpenSslDigest.h"

#include <QSignalSpy>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// What may happen to an index while a window is open.
struct IndexLoss {
  const char* what;
  void (*happens)(const fs::path& index);
};

class BankDeskTest : public WindowTest, public testing::WithParamInterface<IndexLoss> {};

TEST_P(BankDeskTest, FillsAnIndexThatIsLostMeanwhile) {
  fs::create_directories(folder / "exams");
  FrameSetExam other(services);
  other.Question(1).text = u"What is mitosis?";
  other.CountQuestions();
  ASSERT_FALSE(ExamFileWriter(other, services).Write(folder / "exams" / "a.exm"));
  const OpenSslDigest digest;
  const BankPlace place = BankPlaceAt(folder / "cache" / "bank.sqlite");
  BankDesk desk(place, services, digest, nullptr);
  QSignalSpy updated(&desk, &BankDesk::Updated);
  const auto find = [&desk] {
    QSignalSpy found(&desk, &BankDesk::Found);
    desk.Find(ParseBankQuery(u"mitosis"));
    return found.wait(20'000) ? desk.Hits().hits.size() : std::size_t{999};
  };
  ASSERT_FALSE(desk.AddFolder(folder / "exams").IsAnything());
  ASSERT_TRUE(updated.wait(20'000));
  ASSERT_EQ(find(), 1U);
  GetParam().happens(place.index);
  updated.clear();
  EXPECT_EQ(find(), 0U);
  EXPECT_TRUE(desk.Hits().problem.trouble == BankTrouble::None ||
              desk.Hits().problem.trouble == BankTrouble::Damaged);
  ASSERT_TRUE(!updated.isEmpty() || updated.wait(20'000)) << "it is filled without being told to";
  EXPECT_EQ(find(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Losses, BankDeskTest,
    testing::Values(IndexLoss{"newer",
                              [](const fs::path& index) {
                                Database(index, 1000).Execute("PRAGMA user_version=999; DROP TABLE exam");
                              }},
                    IndexLoss{"removed", [](const fs::path& index) { fs::remove_all(index); }},
                    IndexLoss{"overwritten",
                              [](const fs::path& index) { WriteBytes(index, "somebody's text"); }}),
    [](const auto& loss) { return loss.param.what; });

}  // namespace
}  // namespace quorvantis::test
