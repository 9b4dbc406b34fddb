// SPDX-License-Identifier: MIT
#include "desktop/studio/RulesPanel.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "import/prepare/PreparationSteps.h"
#include "learn/rules/RuleFields.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"

#include <QFontDatabase>
#include <QGridLayout>

namespace quorvantis {
namespace {

enum RuleColumn { kWordsColumn, kKeyColumn, kValueColumn, kStateColumn };

QLabel* PlainLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QGridLayout* GridOf(QWidget* content) {
  return static_cast<QGridLayout*>(content->layout());
}

}  // namespace

RulesPanel::RulesPanel(const StringTable& strings, QWidget* parent) : QScrollArea(parent), strings_(strings) {
  NameControl(this, "rulesPanel", ToQString(strings.Text(text_id::kRules)));
  setWidgetResizable(true);
  auto* content = new QWidget(this);
  auto* grid = new QGridLayout(content);
  grid->setColumnStretch(kValueColumn, 1);
  grid->addWidget(PlainLabel(ToQString(strings.Text(text_id::kRulesIntro)), content), 0, 0, 1, 4);
  AddRules(content);
  table_ = new QCheckBox(ToQString(strings.Text(text_id::kRuleTable)), content);
  table_->setObjectName("ruleTable");
  connect(table_, &QCheckBox::clicked, this, &RulesPanel::EditedOther);
  grid->addWidget(table_, grid->rowCount(), 0, 1, 4);
  AddSteps(content);
  setWidget(content);
}

void RulesPanel::AddRules(QWidget* content) {
  QGridLayout* grid = GridOf(content);
  for (const RuleField& field : RuleFields()) {
    const int row = grid->rowCount();
    const QString key = ToQString(std::u16string(field.key));
    auto* words = PlainLabel(ToQString(strings_.Text(field.words)), content);
    auto* value = new QLineEdit(content);
    value->setObjectName("rule" + key);
    value->setAccessibleName(words->text() + " (" + key + ')');
    value->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    value->setLayoutDirection(Qt::LeftToRight);  // patterns are read so in every language
    auto* state = PlainLabel({}, content);
    state->setObjectName("state" + key);
    words->setBuddy(value);
    grid->addWidget(words, row, kWordsColumn);
    grid->addWidget(PlainLabel(key, content), row, kKeyColumn);
    grid->addWidget(value, row, kValueColumn);
    grid->addWidget(state, row, kStateColumn);
    connect(value, &QLineEdit::textEdited, this, [this, rule = rows_.size()] {
      ShowTyped(rule);
      emit Edited(static_cast<int>(rule));
    });
    rows_.push_back({value, state});
  }
}

void RulesPanel::AddSteps(QWidget* content) {
  QGridLayout* grid = GridOf(content);
  const QString heading = ToQString(strings_.Text(text_id::kStepsOfPrepare));
  grid->addWidget(PlainLabel(heading, content), grid->rowCount(), 0, 1, 4);
  for (const PreparationStep& step : PreparationSteps()) {
    const QString name = ToQString(std::u16string(step.name));
    const QString words = ToQString(strings_.Text(step.sentence));
    auto* box = new QCheckBox(QString(words).replace('&', "&&"), content);
    box->setObjectName("step" + name);
    connect(box, &QCheckBox::clicked, this, &RulesPanel::EditedOther);
    const int row = grid->rowCount();
    grid->addWidget(box, row, kValueColumn, 1, 2);
    grid->addWidget(PlainLabel(name, content), row, kKeyColumn);
    steps_.push_back(box);
  }
}

void RulesPanel::ShowStudy(const PaperStudy& study) {
  shown_ = study.Rules();
  study_ = &study;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const QString value = ToQString(shown_.*RuleFields()[i].value);
    if (rows_[i].value->text() == value) continue;
    rows_[i].value->setText(value);
    rows_[i].value->setCursorPosition(0);  // long rules are read from their beginning
  }
  table_->setChecked(shown_.m_nTable != 0);
  for (std::size_t i = 0; i < steps_.size(); ++i)
    steps_[i]->setChecked(HasStep(shown_.prepare, PreparationSteps()[i].name));
  ShowStates();
}

void RulesPanel::Clear() {
  study_ = nullptr;
  for (Row& row : rows_) {
    row.value->clear();
    row.state->clear();
    row.fault.clear();
  }
}

void RulesPanel::ShowStates() {
  if (study_ == nullptr) return;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const std::u16string value = FromQString(rows_[i].value->text());
    rows_[i].fault = ToQString(RuleFault(RuleFields()[i], value, strings_));
    rows_[i].state->setText(ToQString(RuleStateText(RuleFields()[i], value, study_->Reading(), strings_)));
  }
}

/// What it finds is not known yet.
void RulesPanel::ShowTyped(std::size_t rule) {
  Row& row = rows_[rule];
  const std::u16string value = FromQString(row.value->text());
  row.fault = ToQString(RuleFault(RuleFields()[rule], value, strings_));
  row.state->setText(row.fault.isEmpty() ? QStringLiteral("\u2026") : row.fault);
}

QString RulesPanel::Fault() const {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i].fault.isEmpty()) continue;
    return ToQString(FillMessage(strings_.Text(text_id::kImportWaits),
                                 {strings_.Text(RuleFields()[i].words), FromQString(rows_[i].fault)}));
  }
  return {};
}

ImportSettings RulesPanel::Rules() const {
  ImportSettings rules = shown_;
  for (std::size_t i = 0; i < rows_.size(); ++i)
    rules.*RuleFields()[i].value = FromQString(rows_[i].value->text());
  rules.m_nTable = table_->isChecked() ? 1 : 0;
  for (std::size_t i = 0; i < steps_.size(); ++i)
    rules.prepare = WithStep(rules.prepare, PreparationSteps()[i].name, steps_[i]->isChecked());
  return rules;
}

}  // namespace quorvantis
