// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/ShownHitText.h"

#include "desktop/controls/QtText.h"

namespace quorvantis {
namespace {

/// Bold, too: an extra selection of an edit could only underline.
void MarkIn(QTextDocument& document, const std::vector<TextSpan>& marks) {
  QTextCharFormat format;
  format.setFontWeight(QFont::Bold);
  format.setFontUnderline(true);
  QTextCursor cursor(&document);
  for (const TextSpan& mark : marks) {
    cursor.setPosition(static_cast<int>(mark.begin));
    cursor.setPosition(static_cast<int>(mark.end), QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
  }
}

}  // namespace

void ShowHitText(QTextEdit& edit, const BankHitText& shown) {
  const QString text = ToQString(shown.text);
  QTextOption option = edit.document()->defaultTextOption();
  option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  edit.document()->setDefaultTextOption(option);
  edit.setCurrentCharFormat({});  // the text would take that of a mark at its begin
  edit.setPlainText(text);
  MarkIn(*edit.document(), shown.marks);
}

}  // namespace quorvantis
