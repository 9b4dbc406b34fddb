// SPDX-License-Identifier: MIT
#include "platform/documents/MetafileImages.h"

#include "platform/WholeFile.h"
#include "platform/documents/FlatDocument.h"
#include "platform/programs/PageImages.h"

#include <algorithm>
#include <fstream>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kDotsPerInch = 144;              // sharp, and on a page not much larger than in the document
constexpr std::uint64_t kSmallest = 100;       // hundredths of a millimetre
constexpr std::uint64_t kLargest = 50'000;     // what fits on any sheet
constexpr std::uint64_t kUsualWidth = 12'000;  // for pictures of unknown size
constexpr std::uint64_t kUsualHeight = 9'000;

std::string Base64(std::string_view bytes) {
  static constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  constexpr std::size_t kGroup = 3;
  std::string text;
  text.reserve((bytes.size() + 2) / kGroup * 4);
  for (std::size_t i = 0; i < bytes.size(); i += kGroup) {
    std::uint32_t group = 0;
    for (std::size_t j = i; j < i + kGroup; ++j) {
      group = group << 8U | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
    }
    const std::size_t digits = std::min(bytes.size() - i, kGroup) + 1;
    for (std::size_t j = 0; j < 4; ++j) text += j < digits ? kDigits[group >> (18 - 6 * j) & 63U] : '=';
  }
  return text;
}

std::string Millimetres(std::uint64_t hundredths) {
  std::string text = std::to_string(hundredths / 100) + ".";
  return text + std::to_string(hundredths / 10 % 10) + std::to_string(hundredths % 10) + "mm";
}

/// Replaces each "@" in a pattern by the next value.
std::string Fill(std::string_view pattern, std::initializer_list<std::string_view> values) {
  std::string text;
  const auto* value = values.begin();
  for (const char c : pattern) {
    if (c == '@')
      text += *value++;
    else
      text += c;
  }
  return text;
}

constexpr std::string_view kStyle =
    R"(<style:page-layout style:name="L@"><style:page-layout-properties fo:page-width="@" fo:page-height="@" )"
    R"(fo:margin="0mm" style:print-orientation="portrait"/></style:page-layout>)"
    R"(<style:style style:name="P@" style:family="paragraph" style:master-page-name="M@">)"
    R"(<style:text-properties fo:font-size="2pt"/></style:style>)";
constexpr std::string_view kMaster = R"(<style:master-page style:name="M@" style:page-layout-name="L@"/>)";
constexpr std::string_view kPage =
    R"(<text:p text:style-name="P@"><draw:frame draw:style-name="F" text:anchor-type="paragraph" svg:x="0mm" )"
    R"(svg:y="0mm" svg:width="@" svg:height="@"><draw:image><office:binary-data>@</office:binary-data>)"
    R"(</draw:image></draw:frame></text:p>)";
constexpr std::string_view kDrawingStyles =
    R"(<office:automatic-styles><style:style style:name="F" style:family="graphic"><style:graphic-properties )"
    R"(style:wrap="run-through" style:vertical-pos="from-top" style:vertical-rel="paragraph" )"
    R"(style:horizontal-pos="from-left" style:horizontal-rel="paragraph" fo:margin="0mm" fo:padding="0mm" )"
    R"(fo:border="none"/></style:style>@</office:automatic-styles>)"
    R"(<office:master-styles>@</office:master-styles>)";

}  // namespace

std::size_t MetafileImages::Add(const PictureFormat& format, std::string_view bytes) {
  const bool isSized = format.width != 0 && format.height != 0;
  const std::string width =
      Millimetres(std::clamp(isSized ? format.width : kUsualWidth, kSmallest, kLargest));
  const std::string height =
      Millimetres(std::clamp(isSized ? format.height : kUsualHeight, kSmallest, kLargest));
  const std::string number = std::to_string(count_);
  styles_ += Fill(kStyle, {number, width, height, number, number});
  masters_ += Fill(kMaster, {number, number});
  pages_ += Fill(kPage, {number, width, height, Base64(bytes)});
  return count_++;
}

std::string MetafileImages::Document() const {
  return FlatDocument(Fill(kDrawingStyles, {styles_, masters_}), pages_);
}

WordResult MetafileImages::Draw(const OfficeConverter& converter) {
  const fs::path document = folder_.Path() / "pictures.fodt";
  if (!(std::ofstream(document, std::ios::binary) << Document())) return WordResult::CannotAccess;
  const WordResult converted = converter.Convert({document, {kFlatDocumentFilter}, "pdf"});
  if (converted != WordResult::Done) return converted;
  const WordResult drawn = converter.DrawPages(folder_.Path() / "pictures.pdf", kDotsPerInch);
  if (drawn != WordResult::Done) return drawn;
  images_ = DrawnPages(folder_.Path());
  return images_.size() == count_ ? WordResult::Done : WordResult::Damaged;
}

std::string MetafileImages::Bytes(std::size_t number) const {
  return number < images_.size() ? ReadWholeFile(images_[number], kMostImageBytes).value_or("") : "";
}

}  // namespace quorvantis
