// SPDX-License-Identifier: MIT
// Files as addresses of the exam scheme: the path of the address is the path of the file.
#pragma once

#include <QByteArray>
#include <QUrl>

#include <filesystem>
#include <optional>
#include <string_view>

namespace quorvantis {

constexpr char kBlankPage[] = "about:blank";

/// `path` with every byte escaped that means something in an address, separators excepted.
QByteArray EscapedPath(const std::filesystem::path& path);

QUrl AddressOf(const std::filesystem::path& file);

/// An address of something that the program itself makes, for example "flash/ruffle.js".
QUrl OwnAddress(std::string_view name);

/// The file that an address names: absolute and lexically normal. None for other schemes and hosts.
std::optional<std::filesystem::path> FileOf(const QUrl& address);

/// The name given to `OwnAddress`, if the address is such a one.
std::optional<std::filesystem::path> OwnNameOf(const QUrl& address);

}  // namespace quorvantis
