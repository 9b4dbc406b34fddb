// SPDX-License-Identifier: MIT
// Files that the user drags onto the window.
#pragma once

#include <QMimeData>
#include <QUrl>

#include <filesystem>
#include <vector>

namespace quorvantis {

/// Whether dragged or pasted data is files of this computer rather than text.
bool HasLocalFiles(const QMimeData& data);

/// The full paths of those `urls` that are files of this computer, not folders.
std::vector<std::filesystem::path> LocalFiles(const QList<QUrl>& urls);

/// Whether a file is an exam, by its extension.
bool IsExamFile(const std::filesystem::path& file);

}  // namespace quorvantis
