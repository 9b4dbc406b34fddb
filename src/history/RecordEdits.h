// SPDX-License-Identifier: MIT
// What has changed between two records of texts and numbers, as small as a few typed letters are. Works in
// both directions, so that one description serves undo and redo.
#pragma once

#include "text/TextChange.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace quorvantis {

/// Which of the two records is wanted.
enum class Direction { Back, Forward };

/// A text that was replaced within a text field. `start` counts UTF-16 units.
struct TextEdit {
  std::size_t field = 0;  ///< index among the values of the record
  std::size_t start = 0;
  std::u16string removed;
  std::u16string added;
};

struct NumberEdit {
  std::size_t field = 0;
  std::int64_t before = 0;
  std::int64_t after = 0;
};

struct RecordEdits {
  std::vector<TextEdit> texts;
  std::vector<NumberEdit> numbers;

  bool IsEmpty() const { return texts.empty() && numbers.empty(); }

  /// Memory in bytes.
  std::size_t Size() const {
    std::size_t size = texts.size() * sizeof(TextEdit) + numbers.size() * sizeof(NumberEdit);
    for (const TextEdit& edit : texts) size += (edit.removed.size() + edit.added.size()) * sizeof(char16_t);
    return size;
  }
};

/// Much faster than the operator, which compares unit by unit.
inline bool SameText(const std::u16string& a, const std::u16string& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0;
}

/// A place in a text field, in UTF-16 units.
struct FieldPlace {
  std::size_t field = 0;  ///< index among the values of the record
  std::size_t place = 0;
};

/// A visitor for two records side by side that notes their differences.
class EditFinder {
 public:
  /// `end`: where the change of a text ends, if that is known.
  explicit EditFinder(std::optional<FieldPlace> end = {}) : end_(end) {}

  void operator()(const std::u16string& before, const std::u16string& after) {
    const std::size_t field = field_++;
    if (SameText(before, after)) return;
    const TextChange change =
        end_ && end_->field == field ? FindChange(before, after, end_->place) : FindChange(before, after);
    found.texts.push_back({field, change.start, before.substr(change.start, change.removed),
                           after.substr(change.start, change.added)});
  }

  template <class Number>
  requires(std::is_integral_v<Number> || std::is_enum_v<Number>) void operator()(Number before,
                                                                                 Number after) {
    const std::size_t field = field_++;
    if (before == after) return;
    found.numbers.push_back({field, static_cast<std::int64_t>(before), static_cast<std::int64_t>(after)});
  }

  RecordEdits found;

 private:
  std::optional<FieldPlace> end_;
  std::size_t field_ = 0;
};

/// A visitor that makes one record of the two from the other.
class EditTaker {
 public:
  EditTaker(const RecordEdits& edits, Direction direction) : edits_(edits), direction_(direction) {}

  void operator()(std::u16string& value) {
    const std::size_t field = field_++;
    if (nextText_ == edits_.texts.size() || edits_.texts[nextText_].field != field) return;
    const TextEdit& edit = edits_.texts[nextText_++];
    const bool forward = direction_ == Direction::Forward;
    value.replace(edit.start, (forward ? edit.removed : edit.added).size(),
                  forward ? edit.added : edit.removed);
  }

  template <class Number>
  requires(std::is_integral_v<Number> || std::is_enum_v<Number>) void operator()(Number& value) {
    const std::size_t field = field_++;
    if (nextNumber_ == edits_.numbers.size() || edits_.numbers[nextNumber_].field != field) return;
    const NumberEdit& edit = edits_.numbers[nextNumber_++];
    value = static_cast<Number>(direction_ == Direction::Forward ? edit.after : edit.before);
  }

 private:
  const RecordEdits& edits_;
  Direction direction_;
  std::size_t field_ = 0;
  std::size_t nextText_ = 0;
  std::size_t nextNumber_ = 0;
};

}  // namespace quorvantis
