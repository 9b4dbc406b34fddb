// SPDX-License-Identifier: MIT
// The scripts that the browser runs in exam pages in addition to their own.
#pragma once

#include <QString>
#include <QWebEngineScript>

namespace quorvantis {

/// What the page scripts need to know.
struct PageScriptSetup {
  QString preparing;  ///< notices; %1 is the name of the file
  QString cannotShow;
};

/// Runs in every frame before the page does anything: provides the status line, reported to the host by
/// console lines that begin with `kStatusLine`, and replaces embedded files by players and pictures.
QWebEngineScript PageScript(const PageScriptSetup& setup);

constexpr char kStatusLine[] = "STATUS:";

/// Run this in a loaded page repeatedly until its value is true: the page may then be printed.
QString PrintScript();

}  // namespace quorvantis
