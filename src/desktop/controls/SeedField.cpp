// SPDX-License-Identifier: MIT
#include "desktop/controls/SeedField.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/VersionTexts.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRandomGenerator>

namespace quorvantis {
namespace {

QString RandomSeedText() {
  constexpr quint32 kSeeds = 1'000'000'000;
  return QString::number(QRandomGenerator::system()->bounded(kSeeds));
}

}  // namespace

SeedField::SeedField(const StringTable& strings, const char* name, const char* buttonName, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(RandomSeedText(), this)) {
  auto* another = new QPushButton(ToQString(strings.Text(text_id::kVersionsNewSeed)), this);
  another->setAutoDefault(false);
  NameControl(line_, name, ToQString(strings.Text(text_id::kVersionsSeed)));
  NameControl(another, buttonName, another->text());
  connect(another, &QPushButton::clicked, this, &SeedField::Renew);
  connect(line_, &QLineEdit::textChanged, this, &SeedField::Changed);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(line_, 1);
  layout->addWidget(another);
  setFocusProxy(line_);
}

void SeedField::Renew() {
  line_->setText(RandomSeedText());
}

}  // namespace quorvantis
