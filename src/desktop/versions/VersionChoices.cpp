// SPDX-License-Identifier: MIT
#include "desktop/versions/VersionChoices.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/VersionTexts.h"
#include "versions/plan/VersionNames.h"

#include <QSignalBlocker>

#include <algorithm>

namespace quorvantis {
namespace {

struct MovesRow {
  QuestionMoves moves;
  int text;
};

constexpr MovesRow kMovesRows[] = {
    {QuestionMoves::Neighbours, text_id::kMovesNeighbours},
    {QuestionMoves::WithinKind, text_id::kMovesWithinKind},
    {QuestionMoves::WithinScore, text_id::kMovesWithinScore},
    {QuestionMoves::All, text_id::kMovesAll},
    {QuestionMoves::None, text_id::kMovesNone},
};

}  // namespace

VersionChoices::VersionChoices(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      form_(new QFormLayout(this)),
      count_(new QSpinBox(this)),
      names_(new QLineEdit(this)),
      seed_(new SeedField(strings, "versionSeed", "versionNewSeed", this)),
      moves_(new QComboBox(this)),
      options_(new QCheckBox(Text(text_id::kVersionsOptions), this)) {
  form_->setContentsMargins(0, 0, 0, 0);
  form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
  count_->setRange(1, static_cast<int>(kMaxVersions));
  AddRow("versionCount", text_id::kVersionsHowMany, count_);
  AddRow("versionNames", text_id::kVersionsNames, names_);
  AddMoves();
  NameControl(options_, "versionOptions", options_->text());
  form_->addRow(options_);
  form_->addRow(Text(text_id::kVersionsSeed), seed_);
  Show({LetterNames(2), Chosen().seed});
  connect(count_, &QSpinBox::valueChanged, this, &VersionChoices::TakeCount);
  connect(names_, &QLineEdit::textChanged, this, &VersionChoices::TakeNames);
  connect(seed_, &SeedField::Changed, this, &VersionChoices::Changed);
  connect(moves_, &QComboBox::currentIndexChanged, this, &VersionChoices::Changed);
  connect(options_, &QCheckBox::toggled, this, &VersionChoices::Changed);
}

void VersionChoices::AddRow(const char* name, int text, QWidget* field) {
  form_->addRow(Text(text), field);
  NameControl(field, name, Text(text));
}

void VersionChoices::AddMoves() {
  for (const MovesRow& row : kMovesRows) moves_->addItem(Text(row.text), static_cast<int>(row.moves));
  moves_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  moves_->setMinimumContentsLength(24);
  AddRow("versionMoves", text_id::kVersionsQuestions, moves_);
}

void VersionChoices::Show(const VersionRequest& request) {
  const QSignalBlocker quiet(this);
  QStringList names;
  for (const std::u16string& name : request.names) names.append(ToQString(name));
  {
    const QSignalBlocker quietNames(names_);
    const QSignalBlocker quietCount(count_);
    names_->setText(names.join(u','));
    count_->setValue(static_cast<int>(names.size()));
  }
  seed_->Show(QString::number(request.seed));
  moves_->setCurrentIndex(std::max(moves_->findData(static_cast<int>(request.moves)), 0));
  options_->setChecked(request.movesOptions);
}

VersionRequest VersionChoices::Chosen() const {
  VersionRequest request;
  for (const QString& name : Names()) request.names.push_back(FromQString(name));
  request.seed = seed_->Typed().toULongLong();
  request.moves = static_cast<QuestionMoves>(moves_->currentData().toInt());
  request.movesOptions = options_->isChecked();
  return request;
}

QStringList VersionChoices::Names() const {
  QStringList names = names_->text().split(u',');
  for (QString& name : names) name = name.trimmed();
  return names;
}

void VersionChoices::TakeCount(int count) {
  QStringList names = Names();
  const std::vector<std::u16string> letters = LetterNames(kMaxVersions);
  while (names.size() > count) names.removeLast();
  for (std::size_t next = 0; names.size() < count && next < letters.size(); ++next) {
    const QString letter = ToQString(letters[next]);
    if (!names.contains(letter)) names.append(letter);
  }
  {
    const QSignalBlocker quiet(names_);
    names_->setText(names.join(u','));
  }
  emit Changed();
}

void VersionChoices::TakeNames() {
  {
    const QSignalBlocker quiet(count_);
    count_->setValue(static_cast<int>(Names().size()));
  }
  emit Changed();
}

QString VersionChoices::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
