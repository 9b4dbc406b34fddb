// SPDX-License-Identifier: MIT
// The pages that frames show for what the browser cannot show itself.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

namespace quorvantis {

/// The texts of these pages; %1 is the name of the file unless noted otherwise.
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

/// A notice that reloads itself as soon as its address with the query "wait" has been answered.
QByteArray WaitingPage(const QString& text);

/// Pictures one below the other, and `remark` under them if there is one.
QByteArray PicturesPage(const QList<QUrl>& pictures, const QString& remark);

/// A page with just an embedded file, which the page scripts show under that name.
QByteArray EmbedPage(const QUrl& file, const QString& name);

/// Lines of plain text, and `remark` under them if there is one.
QByteArray TextPage(const QString& text, const QString& remark);

}  // namespace quorvantis
