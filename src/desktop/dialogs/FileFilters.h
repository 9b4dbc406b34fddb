// SPDX-License-Identifier: MIT
// Converts the filters of a FileDialogRequest for Qt's file dialogs.
#pragma once

#include <QString>
#include <QStringList>

#include <string_view>
#include <vector>

namespace quorvantis {

/// One kind of file that a dialog offers.
struct FileFilter {
  QString label;
  QStringList patterns;  ///< for example "*.exm"

  /// "Label (*.a *.b)".
  QString ForQt() const;

  /// The extension of the first pattern, without the dot.
  QString FirstExtension() const;
};

/// Reads "Label|*.a;*.b|Label|*.c|".
std::vector<FileFilter> ParseFilters(std::u16string_view text);

/// `path` with an extension of the chosen kind. An extension of any of `filters` is kept, so that typing one
/// overrides the choice; everything else ("Term 1.2") is part of the name.
QString WithExtension(const QString& path, const std::vector<FileFilter>& filters, const QString& extension);

}  // namespace quorvantis
