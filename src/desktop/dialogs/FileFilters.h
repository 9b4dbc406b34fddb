// SPDX-License-Identifier: MIT
// The filters of a FileDialogRequest as file dialogs of Qt need them.
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

/// `path` with an extension that a file of the chosen kind has. An extension of any of `filters` is left as
/// it is, so that typing one overrules the choice; everything else ("Term 1.2") is part of the name.
QString WithExtension(const QString& path, const std::vector<FileFilter>& filters, const QString& extension);

}  // namespace quorvantis
