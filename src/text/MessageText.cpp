// SPDX-License-Identifier: MIT
#include "text/MessageText.h"

#include "text/CountedForm.h"

#include <span>
#include <utility>

namespace quorvantis {
namespace {

/// Fills one format, from its front to its end.
class MessageFiller {
 public:
  /// `values` must outlive this.
  explicit MessageFiller(std::span<const std::u16string_view> values) : values_(values) {}

  std::u16string Fill(std::u16string_view format) {
    Append(format);
    return std::move(message_);
  }

 private:
  void Append(std::u16string_view format) {
    while (!format.empty()) {
      std::size_t taken = AppendCounted(format);
      if (taken == 0) taken = AppendValue(format);
      if (taken == 0) {
        message_ += format.front();
        taken = 1;
      }
      format.remove_prefix(taken);
    }
  }

  /// Appends the form that fits, if `text` begins with a group of them. Gives the length of the group, or 0.
  std::size_t AppendCounted(std::u16string_view text) {
    const std::size_t end = text.starts_with(u'{') ? text.find(u'}') : text.npos;
    if (end == text.npos) return 0;
    std::u16string_view forms = text.substr(1, end - 1);
    const std::u16string_view* number = NumberedValue(forms);
    if (number == nullptr || forms.substr(2, 1) != u"|") return 0;
    forms.remove_prefix(3);
    Append(CountedForm(forms, *number));
    return end + 1;
  }

  /// Appends a value, if `text` begins with a placeholder that has one. Gives the placeholder's length, or 0.
  std::size_t AppendValue(std::u16string_view text) {
    const bool isNext = text.starts_with(u"%s") || text.starts_with(u"%d");
    const std::u16string_view* value = isNext ? NextValue() : NumberedValue(text);
    if (value == nullptr) return 0;
    message_ += *value;
    return 2;
  }

  const std::u16string_view* NextValue() { return next_ < values_.size() ? &values_[next_++] : nullptr; }

  /// The value of the placeholder "%1" to "%9" that `text` begins with; null if there is none.
  const std::u16string_view* NumberedValue(std::u16string_view text) const {
    if (text.size() < 2 || text[0] != u'%' || text[1] < u'1' || text[1] > u'9') return nullptr;
    const auto index = static_cast<std::size_t>(text[1] - u'1');
    return index < values_.size() ? &values_[index] : nullptr;
  }

  std::span<const std::u16string_view> values_;
  std::size_t next_ = 0;  ///< of a placeholder without a number
  std::u16string message_;
};

}  // namespace

std::u16string FillMessage(std::u16string_view format, std::initializer_list<std::u16string_view> values) {
  return MessageFiller({values.begin(), values.size()}).Fill(format);
}

}  // namespace quorvantis
