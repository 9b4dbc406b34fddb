// SPDX-License-Identifier: MIT
#pragma once

#include "model/FileKinds.h"

#include <QByteArray>
#include <QString>

#include <filesystem>

namespace quorvantis {

/// The lower-case text after the last dot of the file's name.
QString ExtensionOf(const std::filesystem::path& file);

FileKind KindOf(const std::filesystem::path& file);

/// The content type for a page, a picture or a media file of this extension.
QByteArray ContentTypeOf(const std::filesystem::path& file);

}  // namespace quorvantis
