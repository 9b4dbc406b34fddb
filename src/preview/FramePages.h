// SPDX-License-Identifier: MIT
// The pages that stand in a frame for what the browser cannot show itself.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

namespace quorvantis {

/// What these pages say; %1 is the name of the file.
struct PreviewTexts {
  QString preparing = QStringLiteral("Preparing %1…");
  QString cannotShow = QStringLiteral("%1 cannot be shown here.");
  QString notFound = QStringLiteral("%1 is missing.");
  QString needsProgram = QStringLiteral("%1 cannot be shown, because %2 is not installed.");
  QString onlyFirstPages = QStringLiteral("Only the first %1 pages are shown.");
  QString onlyBeginning = QStringLiteral("Only the beginning is shown.");
};

/// One line of text in a box, for example why a file is not shown.
QByteArray NoticePage(const QString& text);

/// A notice that loads its own address again as soon as the address with the query "wait" has been answered.
QByteArray WaitingPage(const QString& text);

/// Pictures one below the other, and `remark` under them if there is one.
QByteArray PicturesPage(const QList<QUrl>& pictures, const QString& remark);

/// Lines of plain text, and `remark` under them if there is one.
QByteArray TextPage(const QString& text, const QString& remark);

}  // namespace quorvantis
