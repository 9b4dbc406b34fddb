// SPDX-License-Identifier: MIT
#include "platform/pdf/PdfPageNumbers.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvantis::test {
namespace {

/// A file of `pages` pages, built as the browser does it.
std::string PdfOf(int pages) {
  const std::string tree = std::to_string(2 * pages + 2) + " 0 R>>\n";
  std::vector<std::string> objects{"<</Type /Catalog\n/Pages " + tree};
  std::string kids;
  for (int i = 0; i < pages; ++i) {
    const std::string content = std::to_string(objects.size() + 2);
    kids += std::to_string(objects.size() + 1) + " 0 R ";
    objects.push_back(
        "<</Type /Page\n/Resources <</ProcSet [/PDF]>>\n/MediaBox [0 0 594.96 841.92]\n/Contents " + content +
        " 0 R\n/Parent " + tree);
    objects.emplace_back("<</Length 0>> stream\n\nendstream\n");
  }
  objects.push_back("<</Type /Pages\n/Count " + std::to_string(pages) + "\n/Kids [" + kids + "]>>\n");
  std::string pdf = "%PDF-1.4\n";
  std::string table;
  for (std::size_t i = 0; i < objects.size(); ++i) {
    std::string offset = std::to_string(pdf.size());
    table += offset.insert(0, 10 - offset.size(), '0') + " 00000 n \n";
    pdf += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "endobj\n";
  }
  const std::string start = std::to_string(pdf.size());
  const std::string size = std::to_string(objects.size() + 1);
  return pdf + "xref\n0 " + size + "\n0000000000 65535 f \n" + table + "trailer\n<</Size " + size +
         "\n/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF";
}

TEST(PdfPageNumbers, ChangeNoPageAndNoCount) {
  const std::string pdf = PdfOf(3);
  const auto numbered = WithPageNumbers(pdf, {NumberCorner::BottomRight, 40, 35});
  ASSERT_TRUE(numbered);
  EXPECT_EQ(CountPdfPages(pdf), 3);
  EXPECT_EQ(CountPdfPages(*numbered), 3);
  EXPECT_EQ(WithPageNumbers(pdf, {NumberCorner::BottomRight, 40, 35}), numbered);  // the same each time
}

TEST(PdfPageNumbers, BlankPagesAreCounted) {
  const auto filled = WithBlankPages(PdfOf(2), 5);
  ASSERT_TRUE(filled);
  EXPECT_EQ(CountPdfPages(*filled), 5);
  EXPECT_EQ(CountPdfPages(WithPageNumbers(*filled, {}).value_or("")), 5);
  EXPECT_EQ(CountPdfPages(WithBlankPages(PdfOf(2), 1).value_or("")), 2);
  EXPECT_FALSE(WithBlankPages("no PDF file", 2));
}

TEST(PdfPageNumbers, DamagedFilesAreNoTrouble) {
  const std::string pdf = PdfOf(2);
  for (std::size_t i = 0; i < pdf.size(); ++i) {
    std::string changed = pdf;
    changed[i] = static_cast<char>(changed[i] ^ 0x11);
    for (const std::string& damaged : {pdf.substr(0, i), changed}) {
      const auto numbered = WithPageNumbers(damaged, {});
      EXPECT_TRUE(!numbered || CountPdfPages(*numbered) == CountPdfPages(damaged)) << i;
    }
  }
  EXPECT_FALSE(WithPageNumbers("no PDF file", {}));
  EXPECT_FALSE(CountPdfPages(""));
}

}  // namespace
}  // namespace quorvantis::test
