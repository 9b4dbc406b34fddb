// SPDX-License-Identifier: MIT
// Set-up of the embedded browser, before it exists.
#pragma once

#include <QLatin1String>

namespace quorvantis {

/// The pages of an exam are loaded under this scheme, which only the program answers.
constexpr QLatin1String kExamScheme("exam");

/// The only host of that scheme: all pages and files share an origin, so frames can reach each other.
constexpr QLatin1String kExamHost("app");

/// Registers the scheme and closes the network paths that bypass request interceptors. Call once, before
/// creating the QApplication.
void PrepareBrowserEngine();

}  // namespace quorvantis
