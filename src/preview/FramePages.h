// SPDX-License-Identifier: MIT
// The pages that stand in a frame for what the browser cannot show itself.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

namespace quorvantis {

/// What these pages say; %1 is the name of the file, if not told otherwise.
struct PreviewTexts {
  QString preparing;
  QString cannotShow;
  QString notFound;
  QString needsProgram;    ///< %2 is the program
  QString onlyFirstPages;  ///< %1 is a number
  QString onlyBeginning;   ///< no name
};

/// One line of text in a box, for example why a file is not shown.
QByteArray NoticePage(const QString& text);

/// A notice that loads its own address again as soon as the address with the query "wait" has been answered.
QByteArray WaitingPage(const QString& text);

/// Pictures one below the other, and `remark` under them if there is one.
QByteArray PicturesPage(const QList<QUrl>& pictures, const QString& remark);

/// An embedded file by itself, for the page scripts to show under that name.
QByteArray EmbedPage(const QUrl& file, const QString& name);

/// Lines of plain text, and `remark` under them if there is one.
QByteArray TextPage(const QString& text, const QString& remark);

}  // namespace quorvantis
