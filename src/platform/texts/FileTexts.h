// SPDX-License-Identifier: MIT
// Of files: attached ones, and why one cannot be opened or saved.
#pragma once

namespace quorvantis::text_id {

constexpr int kAllFiles = 1127;  // a file filter that follows kAttachmentFilter

// In the place of an attached file
constexpr int kPreparing = 1004;       // "Preparing %1…", in the place of an attached file; likewise:
constexpr int kCannotShow = 1005;      // "%1 cannot be shown here."
constexpr int kFileMissing = 1006;     // "%1 is missing."
constexpr int kNeedsProgram = 1007;    // "%1 cannot be shown because %2 is not installed."
constexpr int kFirstPagesOnly = 1008;  // "Only the first %1 pages are shown."
constexpr int kBeginningOnly = 1009;   // "Only the beginning is shown."

// Of attached files
constexpr int kSaveCopy = 1012;  // of an attached file
constexpr int kRemoveAttachment = 1013;
constexpr int kNoProgramOpens = 1014;  // "No program was found that can open %1."
constexpr int kAttachedWithoutContent = 1827;

// Why a file could not be opened or saved
constexpr int kNotPermitted = 1128;  // why a file could not be opened or saved; likewise:
constexpr int kNotThere = 1129;
constexpr int kDiskFull = 1133;
constexpr int kReadOnlyDisk = 1134;
constexpr int kIsFolder = 1135;
constexpr int kReadOrWriteFails = 1136;
constexpr int kNameTooLong = 1137;

}  // namespace quorvantis::text_id
