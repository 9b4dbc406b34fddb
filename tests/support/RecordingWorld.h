// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/CodePage.h"
#include "platform/DebugOutput.h"
#include "platform/Files.h"
#include "platform/IdSource.h"
#include "platform/PageStore.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/posix/FileRegistry.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quorvantis::test {

/// Dialogs that record what was shown and answer from a script; an empty script cancels.
class RecordingDialogs : public UserDialogs {
 public:
  std::vector<std::u16string> errors;
  std::vector<std::u16string> warnings;
  std::vector<std::u16string> done;
  std::vector<std::u16string> questions;
  std::vector<std::u16string> losses;
  LossAnswer lossAnswer = LossAnswer::SaveAnyway;
  std::deque<SaveAnswer> answers;
  std::deque<bool> yesNoAnswers;
  std::deque<std::filesystem::path> filesToOpen;
  std::deque<std::filesystem::path> filesToSave;
  std::vector<FileDialogRequest> requests;

  void ShowError(std::u16string_view text) override { errors.emplace_back(text); }
  void ShowWarning(std::u16string_view text) override { warnings.emplace_back(text); }
  void ShowDone(std::u16string_view text) override { done.emplace_back(text); }
  bool AskYesNo(std::u16string_view question) override {
    questions.emplace_back(question);
    return Next(yesNoAnswers).value_or(false);
  }
  LossAnswer AskAboutLosses(const LossQuestion& question) override {
    losses = question.losses;
    if (!question.storeWhole.empty()) losses.emplace_back(u"(can be stored)");
    return lossAnswer;
  }
  SaveAnswer AskSave(std::u16string_view question) override {
    questions.emplace_back(question);
    return Next(answers).value_or(SaveAnswer::Cancel);
  }
  std::filesystem::path folder;
  void BeginIn(const std::filesystem::path& start) override { folder = start; }
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) override {
    requests.push_back(request);
    return Next(filesToOpen);
  }
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) override {
    requests.push_back(request);
    return Next(filesToSave);
  }

 private:
  template <class T>
  static std::optional<T> Next(std::deque<T>& script) {
    if (script.empty()) return std::nullopt;
    T next = script.front();
    script.pop_front();
    return next;
  }
};

/// Every text is its number and its placeholder in brackets: "[102 %s]".
class NumberStrings : public StringTable {
 public:
  std::u16string Text(int number) const override {
    const std::string digits = std::to_string(number);
    return u"[" + std::u16string(digits.begin(), digits.end()) + u" %s]";
  }
};

/// Bytes 80 to FF are the Cyrillic letters from U+0400 on; FF is malformed.
class TestCodePage : public CodePage {
 public:
  std::u16string Decode(std::string_view bytes) const override {
    std::u16string text;
    for (const char c : bytes) {
      const auto byte = static_cast<unsigned char>(c);
      text.push_back(byte == 0xFF   ? u'\uFFFD'
                     : byte >= 0x80 ? static_cast<char16_t>(0x400 + byte - 0x80)
                                    : static_cast<char16_t>(byte));
    }
    return text;
  }
  std::optional<std::string> Encode(std::u16string_view text) const override {
    std::string bytes;
    for (const char16_t unit : text) {
      if (unit >= 0x80 && (unit < 0x400 || unit >= 0x47F)) return std::nullopt;
      bytes.push_back(static_cast<char>(unit < 0x80 ? unit : unit - 0x400 + 0x80));
    }
    return bytes;
  }
};

class RecordingDebug : public DebugOutput {
 public:
  std::vector<std::u16string> lines;
  void Line(std::u16string_view text) override { lines.emplace_back(text); }
};

/// Lets a test do something in the middle of reading and writing.
class InterruptedProgress : public Progress {
 public:
  std::function<void()> whileWorking;
  void Report(std::uint64_t, std::uint64_t) override {
    if (whileWorking) whileWorking();
  }
};

/// "{00000001-…}", "{00000002-…}" and so on.
class CountingIds : public IdSource {
 public:
  std::u16string NewId() override {
    std::string digits = std::to_string(++count_);
    digits.insert(0, 8 - digits.size(), '0');
    return u"{" + std::u16string(digits.begin(), digits.end()) + u"-0000-0000-0000-000000000000}";
  }

 private:
  int count_ = 0;
};

/// The pages, by the paths that they were written to.
class KeptPages : public PageStore {
 public:
  std::map<std::filesystem::path, std::u16string> pages;
  void Add(const std::filesystem::path& file, std::u16string text) override { pages[file] = std::move(text); }
  std::vector<std::filesystem::path> notWritten;
  void NotWritten(const std::filesystem::path& file) override { notWritten.push_back(file); }
  std::vector<PageSource> sources;
  void AddSource(PageSource source) override { sources.push_back(std::move(source)); }
  void Clear() override {
    pages.clear();
    sources.clear();
  }
};

/// Everything a document needs, with real files below `applicationFolder`.
struct RecordingWorld {
  RecordingWorld(std::filesystem::path applicationFolder, Files& files)
      : RecordingWorld(std::move(applicationFolder), files, pages, progress) {}

  /// Including the window's pages and progress.
  RecordingWorld(std::filesystem::path applicationFolder, Files& files, PageStore& shownPages,
                 Progress& shownProgress)
      : registry(applicationFolder / kRegistryFile, files),
        services{std::move(applicationFolder),
                 strings,
                 dialogs,
                 codePage,
                 debug,
                 files,
                 shownProgress,
                 longAnswerFlags,
                 ids,
                 registry,
                 shownPages} {}

  NumberStrings strings;
  RecordingDialogs dialogs;
  TestCodePage codePage;
  RecordingDebug debug;
  InterruptedProgress progress;
  LongAnswerFlags longAnswerFlags;
  CountingIds ids;
  FileRegistry registry;
  KeptPages pages;
  ExamServices services;
};

}  // namespace quorvantis::test
