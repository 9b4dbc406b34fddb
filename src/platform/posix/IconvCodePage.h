// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CodePage.h"

#include <memory>
#include <string>

namespace quorvantis {

/// A code page of the C library's iconv.
class IconvCodePage : public CodePage {
 public:
  /// `name` as iconv knows it, for example "GBK" or "CP1252"; an unknown name stands for "CP1252".
  explicit IconvCodePage(const std::string& name);
  ~IconvCodePage() override;

  std::u16string Decode(std::string_view bytes) const override;
  std::optional<std::string> Encode(std::u16string_view text) const override;

 private:
  struct Converter;
  std::unique_ptr<Converter> decoder_;
  std::unique_ptr<Converter> encoder_;
};

}  // namespace quorvantis
