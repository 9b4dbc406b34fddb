// SPDX-License-Identifier: MIT
#include "text/MessageText.h"

#include "text/CountedForm.h"

namespace quorvantis {
namespace {

/// The size of the group of forms that `text` begins with, its braces included; 0 when it begins with none.
std::size_t GroupSize(std::u16string_view text) {
  const std::size_t end = text.starts_with(u'{') ? text.find(u'}') : text.npos;
  return end == text.npos ? 0 : end + 1;
}

/// A form has no group in it, so this is one level deep.
std::u16string FillForm(std::u16string_view group, std::u16string_view number) {
  return FillMessage(CountedForm(group.substr(1, group.size() - 2), number), {number});
}

}  // namespace

std::u16string FillMessage(std::u16string_view format, std::initializer_list<std::u16string_view> values) {
  std::u16string message;
  const auto* value = values.begin();
  while (!format.empty()) {
    std::size_t taken = 1;
    const std::size_t group = GroupSize(format);
    if (value != values.end() && group > 0) {
      taken = group;
      message += FillForm(format.substr(0, group), *value++);
    } else if (value != values.end() && (format.starts_with(u"%s") || format.starts_with(u"%d"))) {
      taken = 2;
      message += *value++;
    } else {
      message += format.front();
    }
    format.remove_prefix(taken);
  }
  return message;
}

}  // namespace quorvantis
