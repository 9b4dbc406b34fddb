// SPDX-License-Identifier: MIT
// The scripts that the browser runs in exam pages besides their own.
#pragma once

#include <QString>
#include <QWebEngineScript>

namespace quorvantis {

/// What the page scripts have to know.
struct PageScriptSetup {
  QString preparing;  ///< notices; %1 is the name of the file
  QString cannotShow;
};

/// Runs in every frame before the page does anything: brings the status line, of which the host is told by
/// console lines that begin with `kStatusLine`, and replaces embedded files by players and pictures.
QWebEngineScript PageScript(const PageScriptSetup& setup);

constexpr char kStatusLine[] = "STATUS:";

/// To be run in a loaded page again and again until its value is true: it may then be printed.
QString PrintScript();

}  // namespace quorvantis
