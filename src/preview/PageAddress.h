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

/// `path` with every byte escaped that is special in an address, except separators.
QByteArray EscapedPath(const std::filesystem::path& path);

QUrl AddressOf(const std::filesystem::path& file);

/// The address of something the program itself provides, for example "flash/ruffle.js".
QUrl OwnAddress(std::string_view name);

/// The file of an address: absolute and lexically normal. Empty for other schemes and hosts.
std::optional<std::filesystem::path> FileOf(const QUrl& address);

/// The name given to `OwnAddress`, if that made the address.
std::optional<std::filesystem::path> OwnNameOf(const QUrl& address);

}  // namespace quorvantis
