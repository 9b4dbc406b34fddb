// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>

namespace quorvantis {

/// How an attached file is shown in a page.
enum class FileKind {
  Page,      ///< hypertext
  Text,      ///< decoded and shown as lines
  Document,  ///< shown as pictures of its pages
  Picture,
  Media,  ///< sound and film, perhaps converted
  Flash,
  Other  ///< only its name is shown
};

/// The lower-case text after the last dot of the file's name.
QString ExtensionOf(const std::filesystem::path& file);

FileKind KindOf(const std::filesystem::path& file);

/// The content type for a page, a picture or a media file of this extension.
QByteArray ContentTypeOf(const std::filesystem::path& file);

}  // namespace quorvantis
