// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

enum class SaveAnswer { Yes, No, Cancel };

/// What to do about what saving would lose.
enum class LossAnswer { StoreWhole, SaveAnyway, GoBack };

struct LossQuestion {
  std::u16string heading;
  std::vector<std::u16string> losses;  ///< one line each
  std::u16string storeWhole;           ///< captions of the answers; this one is empty where it is impossible
  std::u16string saveAnyway;
  std::u16string goBack;
};

/// What a file dialog starts with.
struct FileDialogRequest {
  std::u16string filter;            ///< "Label|*.a;*.b|Label|*.c|"
  std::u16string defaultExtension;  ///< for a name typed without one; no dot
  std::u16string initialName;
  std::filesystem::path folder = {};  ///< to begin in; empty for that of the exam
};

/// The questions and messages that any part of the program may show. All of them wait for the user.
class UserDialogs {
 public:
  virtual ~UserDialogs() = default;

  /// The command failed; one OK button.
  virtual void ShowError(std::u16string_view text) = 0;

  /// The command succeeded in part; one OK button.
  virtual void ShowWarning(std::u16string_view text) = 0;

  /// The command succeeded; one OK button.
  virtual void ShowDone(std::u16string_view text) = 0;

  /// A warning that asks whether to continue, with Yes and No; closing it means No.
  virtual bool AskYesNo(std::u16string_view question) = 0;

  /// The same where Yes loses something, such as a file: for a user who presses Enter, too, it means No.
  virtual bool AskYesToLose(std::u16string_view question) { return AskYesNo(question); }

  /// "File … Changed. Save File ?" with Yes, No and Cancel.
  virtual SaveAnswer AskSave(std::u16string_view question) = 0;

  /// Shows what saving would lose and asks what to do. Closing the question means GoBack.
  virtual LossAnswer AskAboutLosses(const LossQuestion& question) = 0;

  /// File dialogs begin in this folder, that of the exam, from now on.
  virtual void BeginIn(const std::filesystem::path& folder) = 0;

  /// The full path of the chosen file, or nothing when the user cancelled.
  virtual std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) = 0;

  /// The full path of the file to write, or nothing when the user cancelled. A person has confirmed replacing
  /// an existing file; a script is not asked.
  virtual std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) = 0;
};

}  // namespace quorvantis
