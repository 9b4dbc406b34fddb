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
  std::u16string storeWhole;           ///< captions of the answers; this one empty where it cannot be
  std::u16string saveAnyway;
  std::u16string goBack;
};

/// What a file dialog starts with.
struct FileDialogRequest {
  std::u16string filter;            ///< "Label|*.a;*.b|Label|*.c|"
  std::u16string defaultExtension;  ///< for a name typed without one; no dot
  std::u16string initialName;
};

/// The questions and messages that every part of the program may put to the user. All of them wait for the
/// user.
class UserDialogs {
 public:
  virtual ~UserDialogs() = default;

  /// What the user asked for was not done; one OK button.
  virtual void ShowError(std::u16string_view text) = 0;

  /// It was done, but not wholly; one OK button.
  virtual void ShowWarning(std::u16string_view text) = 0;

  /// It was done; one OK button.
  virtual void ShowDone(std::u16string_view text) = 0;

  /// A warning that asks whether to go on, with Yes and No; closing it is No.
  virtual bool AskYesNo(std::u16string_view question) = 0;

  /// "File … Changed. Save File ?" with Yes, No and Cancel.
  virtual SaveAnswer AskSave(std::u16string_view question) = 0;

  /// Tells what saving would lose, and asks what to do. Closing the question is GoBack.
  virtual LossAnswer AskAboutLosses(const LossQuestion& question) = 0;

  /// File dialogs begin in this folder from now on: there the exam lies.
  virtual void BeginIn(const std::filesystem::path& folder) = 0;

  /// The full path of the chosen file, or nothing when the user cancelled.
  virtual std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) = 0;

  /// The full path of the file to write, or nothing when the user cancelled. A person
  /// has confirmed to replace an existing one; a script means it.
  virtual std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) = 0;
};

}  // namespace quorvantis
