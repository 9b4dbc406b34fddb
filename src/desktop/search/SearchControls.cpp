// SPDX-License-Identifier: MIT
#include "desktop/search/SearchControls.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/search/HitList.h"
#include "platform/texts/SearchTexts.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <tuple>

namespace quorvantis {
namespace {

/// Enter must not press a button: it searches.
QPushButton* MakeSearchButton(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  NameControl(button, name, caption);
  button->setAutoDefault(false);
  return button;
}

QCheckBox* MakeSwitch(const char* name, const QString& caption, QWidget* parent) {
  auto* box = new QCheckBox(caption, parent);
  NameControl(box, name, caption);
  return box;
}

QLineEdit* MakeLine(const char* name, QLabel* label, QWidget* parent) {
  auto* line = new QLineEdit(parent);
  SetUpField(line, name, label, {});
  line->setClearButtonEnabled(true);
  return line;
}

}  // namespace

SearchControls::SearchControls(QAbstractItemModel& hits, const StringTable& strings, QWidget* window)
    : strings_(strings) {
  using namespace text_id;
  const auto text = [&](int id) { return ToQString(strings.Text(id)); };
  findLabel = MakeLabel(window, "findLabel", text(kFindLabel));
  find = MakeLine("find", findLabel, window);
  replaceLabel = MakeLabel(window, "replacementLabel", text(kReplaceLabel));
  replacement = MakeLine("replacement", replaceLabel, window);
  matchCase = MakeSwitch("matchCase", text(kMatchCase), window);
  wholeWords = MakeSwitch("wholeWords", text(kWholeWords), window);
  pattern = MakeSwitch("pattern", text(kFindPattern), window);
  previous = MakeSearchButton("findPrevious", text(kFindPrevious), window);
  next = MakeSearchButton("findNext", text(kFindNext), window);
  replace = MakeSearchButton("replaceOne", text(kReplaceOne), window);
  replaceAll = MakeSearchButton("replaceAll", text(kReplaceAll), window);
  table = new HitTable(hits, HitList::kLine, window);
  NameControl(table, "hits", text(kFindAndReplace));
  notice = MakeLabel(window, "searchNotice", {});
  notice->setWordWrap(true);
  notice->hide();
  count = MakeLabel(window, "hitCount", {});
  cancel = MakeSearchButton("cancelSearch", text(kCancelSearch), window);
  cancel->hide();
  const QString hint = PlainTip(text(kReplacementHint));
  QObject::connect(pattern, &QCheckBox::toggled, replacement,
                   [line = replacement, hint](bool on) { line->setToolTip(on ? hint : QString()); });
  QWidget* previousInOrder = find;
  for (QWidget* control : std::initializer_list<QWidget*>{replacement, previous, next, replace, replaceAll,
                                                          matchCase, wholeWords, pattern, table, cancel}) {
    QWidget::setTabOrder(previousInOrder, control);
    previousInOrder = control;
  }
  Place(window);
}

void SearchControls::Place(QWidget* window) {
  auto* fields = new QGridLayout;
  int row = 0;
  for (const auto& [label, line, first, second] :
       {std::tuple(findLabel, find, previous, next),
        std::tuple(replaceLabel, replacement, replace, replaceAll)}) {
    fields->addWidget(label, row, 0);
    fields->addWidget(line, row, 1);
    fields->addWidget(first, row, 2);
    fields->addWidget(second, row, 3);
    ++row;
  }
  auto* switches = new QHBoxLayout;
  for (QCheckBox* box : {matchCase, wholeWords, pattern}) switches->addWidget(box);
  switches->addStretch();
  auto* status = new QHBoxLayout;
  status->addWidget(count, 1);
  status->addWidget(cancel);
  auto* layout = new QVBoxLayout(window);
  layout->addLayout(fields);
  layout->addLayout(switches);
  layout->addWidget(table, 1);
  layout->addWidget(notice);
  layout->addLayout(status);
}

void SearchControls::Unfold(bool on) {
  for (QWidget* control : std::initializer_list<QWidget*>{replaceLabel, replacement, replace, replaceAll})
    control->setVisible(on);
}

void SearchControls::ShowRunning(bool on) {
  cancel->setVisible(on);
  if (on) count->setText(ToQString(strings_.Text(text_id::kSearching)));
}

void SearchControls::Tell(const QString& message) {
  if (notice->text() == message) return;
  notice->setText(message);
  notice->setVisible(!message.isEmpty());
  if (message.isEmpty()) return;
  notice->setAccessibleName(message);
  QAccessibleEvent alert(notice, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace quorvantis
