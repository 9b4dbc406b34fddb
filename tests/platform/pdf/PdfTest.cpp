// SPDX-License-Identifier: MIT
#include "platform/pdf/PdfPageNumbers.h"
#include "platform/pdf/ReadingOrder.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvantis::test {
namespace {

TEST(PdfPageNumbers, OtherBytesAreNoPdfFile) {
  for (const char* bytes : {"", "%PDF-1.4\n", "no file"}) {
    EXPECT_EQ(CountPdfPages(bytes), std::nullopt);
    EXPECT_EQ(WithPageNumbers(bytes, {}), std::nullopt);
  }
}

TEST(ReadingOrder, WordsStandAsTheyAreRead) {
  const std::pair<std::u16string_view, std::u16string_view> lines[] = {
      {u"one two three", u"one two three"},
      {u"\u062C \u0628 \u0627", u"\u0627 \u0628 \u062C"},
      {u"see \u0628 \u0627 now", u"see \u0627 \u0628 now"},
      {u"\u062C big word \u0628 \u0627", u"\u0627 \u0628 big word \u062C"},
      {u"12 \u0628 \u0627", u"\u0627 \u0628 12"},
      {u"", u""}};
  for (const auto& [line, read] : lines) EXPECT_EQ(InReadingOrder(line), read);
}

}  // namespace
}  // namespace quorvantis::test
