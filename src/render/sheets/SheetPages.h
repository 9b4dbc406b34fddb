// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/sheets/SheetRequest.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// The page of a counted exam. Files are shown from the work folders of its application folder.
std::u16string ComposeSheet(const FrameSetExam& exam, const SheetRequest& request);

/// Where the page of a sheet lies: in the application folder, for example "exam_Key.htm".
std::filesystem::path SheetPageFile(const FrameSetExam& exam, Sheet sheet);

/// Composes the page, writes it to its file and gives it to the page store, with the files that it shows.
/// Returns the file.
std::filesystem::path WriteSheet(const FrameSetExam& exam, const SheetRequest& request);

}  // namespace quorvantis
