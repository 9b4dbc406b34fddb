// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace quorvantis {

class CodePage;
class Files;

/// Reads and writes single values of one section of one profile file. The file is read again each time, so
/// changes by others are neither missed nor lost.
class IniProfile {
 public:
  /// Values are read into a buffer of this many UTF-16 units, the last of which is its terminator: longer
  /// ones are cut to 255 units.
  static constexpr std::size_t kBufferSize = 256;

  static constexpr int kNoFile = 100;
  static constexpr int kNoSection = 101;
  static constexpr int kNoKey = 102;

  /// Both must outlive this. `codePage` is that of files which are neither UTF-8 nor UTF-16.
  IniProfile(Files& files, const CodePage& codePage) : files_(files), codePage_(codePage) {}

  /// Keeps both when neither is empty. Otherwise false, and the error is kNoFile or kNoSection; the later one
  /// wins.
  bool SetFile(const std::filesystem::path& file, std::u16string_view section);

  /// True with the value, which is empty when the key or the file is missing. False with kNoKey when the key
  /// is empty; the output is then unchanged.
  bool GetString(std::u16string_view key, std::u16string& value);

  /// Writes a value. False, with the file unchanged, when either is empty, or when the file cannot hold the
  /// text or be written. A missing file is created, a missing folder is not.
  bool WriteString(std::u16string_view key, std::u16string_view value);

  /// The last error of those above, 0 before the first. Success does not reset it.
  int LastError() const { return lastError_; }

 private:
  Files& files_;
  const CodePage& codePage_;
  std::u16string section_;
  std::filesystem::path file_;
  int lastError_ = 0;
};

}  // namespace quorvantis
