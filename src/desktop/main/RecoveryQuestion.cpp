// SPDX-License-Identifier: MIT
#include "desktop/main/RecoveryQuestion.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/EditorTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <QDateTime>
#include <QFontMetrics>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace quorvantis {
namespace {

constexpr int kWidestLine = 420;  // pixels

/// A text of any length, shortened to fit on a line.
std::u16string Shortened(const std::u16string& text, const QWidget& widget) {
  const QString line = ToQString(text).simplified();
  return QFontMetrics(widget.font()).elidedText(line, Qt::ElideMiddle, kWidestLine).toStdU16String();
}

std::u16string TimeText(std::int64_t time) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(time), QLocale::ShortFormat).toStdU16String();
}

}  // namespace

RecoveryAnswer RecoveryQuestion::AskRestore(const RecoveryCopy& copy) {
  const std::u16string question =
      FillMessage(strings_.Text(text_id::kRecoveryQuestion),
                  {Shortened(copy.title, *parent_), FormatInteger(copy.questions),
                   Shortened(PathToText(copy.fileName), *parent_), TimeText(copy.time)});
  QMessageBox box(QMessageBox::Question, QStringLiteral("Quorvantis"), ToQString(question),
                  QMessageBox::NoButton, parent_);
  box.setTextFormat(Qt::PlainText);
  const auto add = [&](int text, QMessageBox::ButtonRole role, const char* name) {
    QPushButton* const button = box.addButton(ToQString(strings_.Text(text)), role);
    button->setObjectName(name);
    return button;
  };
  QPushButton* const restore = add(text_id::kRestore, QMessageBox::AcceptRole, "restore");
  const QPushButton* const discard = add(text_id::kDiscard, QMessageBox::DestructiveRole, "discard");
  QPushButton* const later = add(text_id::kLater, QMessageBox::RejectRole, "later");
  box.setDefaultButton(restore);
  box.setEscapeButton(later);
  box.exec();
  return box.clickedButton() == restore   ? RecoveryAnswer::Restore
         : box.clickedButton() == discard ? RecoveryAnswer::Discard
                                          : RecoveryAnswer::Later;
}

}  // namespace quorvantis
