// SPDX-License-Identifier: MIT
#include "desktop/dialogs/RangeRow.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/dialogs/RangeColours.h"
#include "platform/texts/ProgramTexts.h"
#include "text/NumberText.h"

#include <QPainter>

#include <cstdint>
#include <initializer_list>

namespace quorvantis {
namespace {

constexpr int kQuestionDigits = 4;
constexpr int kScoreDigits = 7;
constexpr int kFieldIndent = 4;  // pixels beside the text of a field

/// The colour that a range has in the bar.
class Swatch : public QWidget {
 public:
  Swatch(int range, QWidget* parent) : QWidget(parent), range_(range) {
    setFixedSize(12, 12);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(RangeColour(isEnabled() ? range_ : 0, palette()));
    painter.drawRoundedRect(rect(), 3, 3);
  }

 private:
  int range_;
};

/// Room for some digits and the frame.
void Narrow(QLineEdit* edit, int digits) {
  edit->setAlignment(Qt::AlignRight);
  edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QString(digits, '0')) + 20);
  edit->setFixedHeight(edit->sizeHint().height());  // the same with and without a frame
}

/// A read-only field looks like a label, and Tab skips it.
void ShowReadOnly(QLineEdit* edit, bool readOnly) {
  edit->setReadOnly(readOnly);
  edit->setFrame(!readOnly);
  edit->setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
  QPalette colours;
  if (readOnly) colours.setColor(QPalette::Base, Qt::transparent);
  edit->setPalette(colours);
}

void ShowField(QLineEdit* edit, const ScoreField& field, bool enabled) {
  if (edit->text() != ToQString(field.text)) edit->setText(ToQString(field.text));
  ShowReadOnly(edit, field.readOnly);
  edit->setEnabled(enabled);
}

QString NameOf(const char* role, int range) {
  return role + QString::number(range);
}

QLineEdit* MakeFrom(int range, QWidget* parent) {
  if (range == 1) return nullptr;
  auto* from = new QLineEdit(parent);
  from->setObjectName(NameOf("rangeFrom", range));
  Narrow(from, kQuestionDigits);
  return from;
}

QWidget* MakeFirstStart(QWidget* parent) {
  QLabel* label = MakeLabel(parent, "rangeStart1", "1");
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  label->setIndent(kFieldIndent);
  return label;
}

QLabel* MakeRangeLabel(const char* role, int range, const QString& caption, QWidget* parent) {
  return MakeLabel(parent, qPrintable(NameOf(role, range)), caption);
}

}  // namespace

RangeRow::RangeRow(int range, const StringTable& strings, QWidget* parent)
    // The widgets belong to `parent`, so a copy of the row refers to the same ones.
    // cppcheck-suppress [noCopyConstructor, noOperatorEq]
    : swatch(new Swatch(range, parent)),
      questionLabel(MakeRangeLabel("rangeQuestionLabel", range,
                                   ToQString(strings.Text(text_id::kRangeQuestion)), parent)),
      from(MakeFrom(range, parent)),
      start(from != nullptr ? from : MakeFirstStart(parent)),
      toLabel(MakeRangeLabel("rangeToLabel", range, ToQString(strings.Text(text_id::kRangeTo)), parent)),
      to(new SteppedEdit(parent)),
      scoreLabel(
          MakeRangeLabel("rangeScoreLabel", range, ToQString(strings.Text(text_id::kRangeScore)), parent)),
      score(new FilteredEdit(ScoreFieldTakes, parent)),
      sum(MakeRangeLabel("rangeSum", range, {}, parent)),
      index_(static_cast<std::size_t>(range - 1)) {
  to->setObjectName(NameOf("rangeTo", range));
  score->setObjectName(NameOf("rangeScore", range));
  Narrow(to, kQuestionDigits);
  Narrow(score, kScoreDigits);
}

void RangeRow::AddTo(QGridLayout& grid, int row) const {
  int column = 0;
  for (QWidget* control : std::initializer_list<QWidget*>{swatch, questionLabel, start, toLabel, to, nullptr,
                                                          scoreLabel, score, sum}) {
    if (control != nullptr) grid.addWidget(control, row, column);
    ++column;
  }
}

void RangeRow::Show(const ScoreFields& fields) {
  const bool enabled = fields.Enabled();
  if (from != nullptr) ShowField(from, fields.from[index_], enabled);
  ShowField(to, fields.to[index_], enabled);
  ShowField(score, fields.score[index_], enabled);
  ShowUse(enabled && !to->text().isEmpty());
  NameFields();
}

void RangeRow::ShowUse(bool used) {
  used_ = used;
  swatch->setVisible(used);
  for (QLabel* label : {questionLabel, toLabel, scoreLabel}) label->setEnabled(used);
  if (from == nullptr) start->setEnabled(used);
}

void RangeRow::ShowSum(const ScoreDistribution& ranges) {
  const std::int64_t first = ranges.scoreFrom[index_];
  const std::int64_t count = ranges.scoreTo[index_] - first + 1;
  sum->clear();
  if (!used_ || first < 1 || count < 1) return;
  const double worth = static_cast<double>(count) * static_cast<double>(ranges.scoreValue[index_]);
  sum->setText(QString("\u00D7 %1 = %2").arg(count).arg(ToQString(FormatScore(worth))));
}

/// Names the questions of a field for screen readers; the label beside it does not.
void RangeRow::NameFields() {
  const QString first = from != nullptr ? from->text() : "1";
  const QString question = questionLabel->text() + " " + first;
  if (from != nullptr) from->setAccessibleName(question);
  to->setAccessibleName(question + " " + toLabel->text());
  score->setAccessibleName(question + " " + toLabel->text() + " " + to->text() + " " + scoreLabel->text());
}

}  // namespace quorvantis
