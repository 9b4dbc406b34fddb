// SPDX-License-Identifier: MIT
// The visitors that read and write snapshots. They walk the fields of an exam without widths: nothing is cut,
// and every number and unit comes back unchanged. Bytes are in the machine's own order, since a recovery copy
// does not travel.
#pragma once

#include "model/ExamFields.h"
#include "model/ExamQuestion.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quorvantis {

class SnapshotWriter {
 public:
  explicit SnapshotWriter(std::string& bytes) : bytes_(bytes) {}

  template <class Value>
  void operator()(const FieldRow&, const Value& value) {
    Field(value);
  }
  void Text(std::u16string_view text) {
    Raw(static_cast<std::uint32_t>(text.size()));
    bytes_.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
  }
  template <class Integer>
  void Number(const Integer& number) {
    Raw(static_cast<std::int64_t>(number));
  }

 private:
  void Field(const std::u16string& text) { Text(text); }
  void Field(const OptionTexts& options) {
    for (const std::u16string& option : options) Text(option);
  }
  void Field(float score) { Raw(score); }
  template <class Integer>
  void Field(const Integer& number) {
    Number(number);
  }

  template <class Value>
  void Raw(const Value& value) {
    bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
  }

  std::string& bytes_;
};

/// Reads fields from untrusted bytes. An incomplete field stays unchanged, and so does every later one.
class SnapshotReader {
 public:
  explicit SnapshotReader(std::string_view bytes) : rest_(bytes) {}

  template <class Value>
  void operator()(const FieldRow&, Value& value) {
    Field(value);
  }
  void Text(std::u16string& text) {
    std::uint32_t units = 0;
    Raw(units);
    const std::size_t size = std::size_t{units} * sizeof(char16_t);
    if (!Takes(size)) return;
    text.resize(units);
    std::memcpy(text.data(), rest_.data(), size);
    rest_.remove_prefix(size);
  }
  template <class Integer>
  void Number(Integer& number) {
    auto value = static_cast<std::int64_t>(number);
    Raw(value);
    number = static_cast<Integer>(value);
  }

  bool Failed() const { return failed_; }
  std::string_view Rest() const { return rest_; }

 private:
  void Field(std::u16string& text) { Text(text); }
  void Field(OptionTexts& options) {
    for (std::u16string& option : options) Text(option);
  }
  void Field(float& score) { Raw(score); }
  template <class Integer>
  void Field(Integer& number) {
    Number(number);
  }

  bool Takes(std::size_t size) {
    failed_ = failed_ || size > rest_.size();
    return !failed_;
  }
  template <class Value>
  void Raw(Value& value) {
    if (!Takes(sizeof value)) return;
    std::memcpy(&value, rest_.data(), sizeof value);
    rest_.remove_prefix(sizeof value);
  }

  std::string_view rest_;
  bool failed_ = false;
};

}  // namespace quorvantis
