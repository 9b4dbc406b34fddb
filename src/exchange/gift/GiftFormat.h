// SPDX-License-Identifier: MIT
// GIFT: "::title:: text {=right ~wrong}", with blank lines between the questions.
#pragma once

#include "exchange/form/Format.h"

#include <string_view>

namespace quorvantis {

/// The characters that a backslash protects, besides itself.
inline constexpr std::u16string_view kGiftSpecial = u"~=#{}:\\";

/// Begins a line that names the category of the questions below it.
inline constexpr std::u16string_view kGiftCategory = u"$CATEGORY:";

bool LooksLikeGift(const ExchangeSource& source);

class GiftReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class GiftWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

}  // namespace quorvantis
