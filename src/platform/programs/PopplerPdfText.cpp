// SPDX-License-Identifier: MIT
#include "platform/programs/PopplerPdfText.h"

#include "platform/programs/ChildProgram.h"
#include "platform/programs/TimeLimits.h"
#include "text/ReadingOrder.h"
#include "text/Utf.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostText = std::size_t{64} << 20;  // bytes

bool IsDirectionMark(char16_t unit) {
  return unit == u'\u061C' || unit == u'\u200E' || unit == u'\u200F' ||
         (unit >= u'\u202A' && unit <= u'\u202E') || (unit >= u'\u2066' && unit <= u'\u2069');
}

/// Each page ends with a form feed, and each line with a line feed.
std::vector<std::u16string> PagesOf(const std::string& output) {
  std::vector<std::u16string> pages;
  std::u16string page;
  std::u16string line;
  for (const char16_t unit : Utf8ToUtf16(output)) {
    if (unit == u'\n' || unit == u'\f') {
      page += InReadingOrder(line);
      line.clear();
    } else if (!IsDirectionMark(unit)) {
      line.push_back(unit);
    }
    if (unit == u'\n') page.push_back(unit);
    if (unit == u'\f') pages.push_back(std::exchange(page, {}));
  }
  return pages;
}

}  // namespace

PdfPages PopplerPdfText::Read(const std::filesystem::path& pdf) {
  ChildOrder order{FindProgram("pdftotext"), {"-raw", "-enc", "UTF-8", "--", pdf.string(), "-"}};
  if (order.program.empty()) return {{}, "pdftotext (package poppler-utils) is not installed"};
  order.readsOutput = true;
  const ChildOutput ran = RunForOutput(order, kLongestLook, kMostText);
  if (ran.end == ChildEnd::TimedOut) return {{}, pdf.string() + ": reading its text took too long"};
  if (ran.end != ChildEnd::Succeeded) return {{}, pdf.string() + ": its text cannot be read"};
  return {PagesOf(ran.output)};
}

}  // namespace quorvantis
