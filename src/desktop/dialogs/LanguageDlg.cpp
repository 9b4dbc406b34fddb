// SPDX-License-Identifier: MIT
#include "desktop/dialogs/LanguageDlg.h"

#include "desktop/controls/QtText.h"
#include "examfile/ExamFileVersions.h"
#include "platform/texts/ProgramTexts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kDialogMargin = 20;  // pixels
constexpr int kListWidth = 240;
constexpr QSize kProgramIconSize(64, 64);
constexpr const char* kVersion = QUORVANTIS_VERSION " 2";  // of the version its second release

/// The version of the program and the tag of the exam files it writes, a line each.
QLabel* MakeVersionText(QWidget* parent) {
  auto* text = new QLabel(kVersion + ("\n" + ToQString(kCurrentVersion.tag)), parent);
  text->setObjectName("version");
  text->setForegroundRole(QPalette::PlaceholderText);
  return text;
}

QLabel* MakeIcon(QWidget* parent) {
  auto* icon = new QLabel(parent);
  icon->setPixmap(parent->windowIcon().pixmap(kProgramIconSize, parent->devicePixelRatio()));
  icon->setAlignment(Qt::AlignTop);
  return icon;
}

/// Never shown; closing the window cancels.
void MakeCancelButton(const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName("cancel");
  button->setEnabled(false);
  button->hide();
}

QLayout* UpperRow(QLabel* icon, const QString& caption, QComboBox* list) {
  auto* label = new QLabel(caption);
  label->setBuddy(list);
  auto* column = new QVBoxLayout;
  column->setSpacing(kDialogMargin / 3);
  column->addWidget(label);
  column->addWidget(list);
  column->addStretch();
  auto* row = new QHBoxLayout;
  row->setSpacing(kDialogMargin);
  row->addWidget(icon);
  row->addLayout(column);
  return row;
}

QLayout* LowerRow(QLabel* version, QPushButton* ok) {
  auto* row = new QHBoxLayout;
  row->addWidget(version);
  row->addStretch();
  row->addWidget(ok, 0, Qt::AlignBottom);
  return row;
}

}  // namespace

LanguageDlg::LanguageDlg(LanguageChoice& choice, const StringTable& strings) {
  const auto text = [&](int id) { return ToQString(strings.Text(id)); };
  setWindowTitle(text(text_id::kLanguage));
  QComboBox* list = MakeList(choice);
  QPushButton* ok = MakeOkButton(text(text_id::kOk));
  MakeCancelButton(text(text_id::kCancel), this);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
  all->setSpacing(kDialogMargin);
  all->addLayout(UpperRow(MakeIcon(this), text(text_id::kSelectLanguage), list));
  all->addLayout(LowerRow(MakeVersionText(this), ok));
  all->setSizeConstraint(QLayout::SetFixedSize);
  list->setFocus();
}

QPushButton* LanguageDlg::MakeOkButton(const QString& text) {
  auto* ok = new QPushButton(text, this);
  ok->setObjectName("ok");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  return ok;
}

QComboBox* LanguageDlg::MakeList(LanguageChoice& choice) {
  auto* list = new QComboBox(this);
  list->setObjectName("languages");
  list->setMinimumWidth(kListWidth);
  for (const std::u16string& name : choice.Names()) list->addItem(ToQString(name));
  const auto selected = choice.Selected();
  list->setCurrentIndex(selected ? static_cast<int>(*selected) : -1);
  connect(list, &QComboBox::currentIndexChanged, this, [&choice](int index) {
    if (index >= 0) choice.Select(static_cast<std::size_t>(index));
  });
  return list;
}

void LanguageDlg::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) QDialog::keyPressEvent(event);
}

}  // namespace quorvantis
