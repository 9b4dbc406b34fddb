// SPDX-License-Identifier: MIT
#include "desktop/LanguageDlg.h"

#include "desktop/QtText.h"
#include "examfile/ExamFileLayout.h"
#include "platform/Texts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kMargin = 20;   // pixels
constexpr int kSpacing = 12;  // pixels
constexpr int kListWidth = 240;
constexpr QSize kIconSize(64, 64);

/// Version of the program and tag of the exam files that it writes, a line each.
QLabel* MakeVersionText(QWidget* parent) {
  auto* text = new QLabel("6.4.5 2\n" + ToQString(kCurrentVersion.tag), parent);
  text->setObjectName("version");
  text->setForegroundRole(QPalette::PlaceholderText);
  return text;
}

QLabel* MakeIcon(QWidget* parent) {
  auto* icon = new QLabel(parent);
  icon->setPixmap(parent->windowIcon().pixmap(kIconSize, parent->devicePixelRatio()));
  icon->setAlignment(Qt::AlignTop);
  return icon;
}

/// Never shown and out of reach; closing the window cancels.
void MakeCancelButton(const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName("cancel");
  button->setEnabled(false);
  button->hide();
}

}  // namespace

LanguageDlg::LanguageDlg(LanguageChoice& choice, const StringTable& strings) {
  const auto text = [&](int id) { return ToQString(strings.Text(id)); };
  setWindowTitle(text(text_id::kLanguage));
  auto* label = new QLabel(text(text_id::kSelectLanguage), this);
  QComboBox* list = MakeList(choice);
  label->setBuddy(list);
  auto* ok = new QPushButton(text(text_id::kOk), this);
  ok->setObjectName("ok");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  MakeCancelButton(text(text_id::kCancel), this);

  auto* choiceColumn = new QVBoxLayout;
  choiceColumn->setSpacing(kSpacing / 2);
  choiceColumn->addWidget(label);
  choiceColumn->addWidget(list);
  choiceColumn->addStretch();
  auto* top = new QHBoxLayout;
  top->setSpacing(kMargin);
  top->addWidget(MakeIcon(this));
  top->addLayout(choiceColumn);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(MakeVersionText(this));
  bottom->addStretch();
  bottom->addWidget(ok, 0, Qt::AlignBottom);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kMargin);
  all->addLayout(top);
  all->addLayout(bottom);
  all->setSizeConstraint(QLayout::SetFixedSize);
  list->setFocus();
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
