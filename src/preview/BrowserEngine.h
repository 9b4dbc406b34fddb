// SPDX-License-Identifier: MIT
// What the embedded browser has to be told before it exists.
#pragma once

#include <QLatin1String>

namespace quorvantis {

/// The pages of an exam are loaded under this scheme, which nothing but the program answers.
constexpr QLatin1String kExamScheme("exam");

/// The only host of that scheme: all pages and files have one origin, so that frames can reach one another.
constexpr QLatin1String kExamHost("app");

/// Makes the scheme known and closes the ways to a network that go past request interceptors. Call once,
/// before the QApplication is made.
void PrepareBrowserEngine();

}  // namespace quorvantis
