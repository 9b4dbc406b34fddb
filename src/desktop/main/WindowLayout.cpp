// SPDX-License-Identifier: MIT
#include "desktop/main/WindowLayout.h"

#include "desktop/layout/Layout.h"
#include "desktop/layout/SizeLimits.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QScreen>

#include <algorithm>
#include <optional>
#include <vector>

namespace quorvantis {
namespace {

/// The size of a frame is only known once the desktop has made it, which is too late.
constexpr int kTitleBar = 40;

PixelSize ToPixels(QSize size) {
  return {size.width(), size.height()};
}

QSize FromPixels(PixelSize size) {
  return {size.width, size.height};
}

/// The menu takes its height from the screen, not from the client area.
SizeLimits ClientLimits(const QScreen& screen, int menuHeight) {
  return LimitsOn(ToPixels(screen.size() - QSize(0, menuHeight)),
                  ToPixels(screen.availableSize() - QSize(0, kTitleBar + menuHeight)));
}

QSize WithMenu(PixelSize client, int menuHeight) {
  return FromPixels(client) + QSize(0, menuHeight);
}

PixelSize TextSize(const QWidget& control, const QString& text) {
  return ToPixels(control.fontMetrics().size(Qt::TextSingleLine, text));
}

PixelSize TextSize(const QLabel& label) {
  return TextSize(label, label.text());
}

LayoutInput Measure(PixelSize area, const WindowControls& controls, const ExamEditor& editor) {
  LayoutInput input;
  input.client = area;
  for (std::size_t i = 0; i < kToolbarButtons; ++i) {
    input.enabled[i] = controls.toolbar.InOrder()[i]->isEnabled();
  }
  input.titleLabel = TextSize(*controls.exam.titleLabel);
  input.randomTextWidth = TextSize(*controls.exam.random, controls.exam.random->text()).width;
  input.examAttachmentsLabel = TextSize(*controls.exam.attachmentsLabel);
  input.examListVisible = editor.attachments.ExamList().visible;
  input.questionLabel = TextSize(*controls.question.label);
  input.questionListVisible = editor.attachments.QuestionList().visible;
  input.oralToggle = ToPixels(controls.question.oralToggle->size());
  input.answerLabel = TextSize(*controls.answers.answerLabel);
  input.essayLabel = TextSize(*controls.answers.essayLabel);
  input.kind = editor.state.CurrentKind();
  return input;
}

/// Moves the controls of the client area to their places.
class Placer {
 public:
  Placer(PixelSize area, const WindowScroll& scroll)
      : width_(area.width), origin_(scroll.Origin()), mirrored_(scroll.Client().isRightToLeft()) {}

  void Place(QWidget* control, const std::optional<PixelRect>& place) const {
    if (!place) return;
    const PixelRect at = mirrored_ ? Mirrored(*place, width_) : *place;
    control->setGeometry(origin_.x() + at.x, origin_.y() + at.y, at.width, at.height);
  }

  template <class Controls, class Places>
  void PlaceAll(const Controls& controls, const Places& places) const {
    for (std::size_t i = 0; i < places.size(); ++i) Place(controls[i], places[i]);
  }

 private:
  int width_;
  QPoint origin_;
  bool mirrored_;
};

void PlaceExam(const Placer& placer, const ExamControls& exam, const LayoutPlaces& places) {
  placer.Place(exam.titleLabel, places.titleLabel);
  placer.Place(exam.title, places.title);
  placer.Place(exam.random, places.random);
  placer.Place(exam.attachmentsLabel, places.examAttachmentsLabel);
  placer.Place(exam.attachments, places.examAttachments);
}

void PlaceQuestion(const Placer& placer, const QuestionControls& question, const LayoutPlaces& places) {
  placer.Place(question.label, places.questionLabel);
  placer.Place(question.number, places.number);
  placer.PlaceAll(question.kinds->buttons(), places.kinds);
  placer.PlaceAll(question.navigation.InOrder(), places.navigation);
  placer.Place(question.text, places.text);
  placer.Place(question.attachments, places.attachments);
  placer.Place(question.oralToggle, places.oralToggle);
}

void PlaceAnswers(const Placer& placer, const AnswerControls& answers, const LayoutPlaces& places) {
  placer.PlaceAll(answers.boxes, places.boxes);
  placer.PlaceAll(answers.options, places.options);
  placer.Place(answers.answerLabel, places.answerLabel);
  placer.Place(answers.answer, places.answer);
  placer.Place(answers.separator, places.listSeparator);
  placer.Place(answers.essayLabel, places.essayLabel);
  placer.Place(answers.essay, places.essay);
}

void TellDisabled(const LayoutInput& input, DebugOutput& debug) {
  for (std::size_t i = 0; i < kToolbarButtons; ++i) {
    if (input.enabled[i]) continue;
    debug.Line(FillMessage(u"CQuorvantisDlg::Layout button %d is disabled", {FormatInteger(i)}));
  }
}

}  // namespace

void PlaceControls(WindowScroll& scroll, const WindowControls& controls, const ExamEditor& editor,
                   DebugOutput& debug) {
  const LayoutInput input = Measure(scroll.Fit(), controls, editor);
  const LayoutPlaces places = Layout(input);
  const Placer placer(input.client, scroll);
  placer.PlaceAll(controls.toolbar.InOrder(), places.toolbar);
  PlaceExam(placer, controls.exam, places);
  placer.Place(controls.questionArea, places.questionArea);
  PlaceQuestion(placer, controls.question, places);
  PlaceAnswers(placer, controls.answers, places);
  placer.Place(controls.notice, NoticePlace(places));
  placer.Place(controls.checkNotice, NoticePlace(places));
  placer.Place(controls.printNotice, NoticePlace(places));
  TellDisabled(input, debug);
}

void LimitSize(QWidget& window, int menuHeight) {
  const SizeLimits limits = ClientLimits(*window.screen(), menuHeight);
  window.setMinimumSize(WithMenu(limits.smallest, menuHeight));
  window.setMaximumSize(WithMenu(limits.largest, menuHeight));
}

void SetFirstSize(QWidget& window, int menuHeight) {
  LimitSize(window, menuHeight);
  window.resize(WithMenu(ClientLimits(*window.screen(), menuHeight).atStart, menuHeight));
}

void SetTabOrder(const WindowControls& controls) {
  std::vector<QWidget*> order;
  const auto append = [&order](const auto& row) { order.insert(order.end(), row.begin(), row.end()); };
  append(controls.toolbar.InOrder());
  append(
      std::initializer_list<QWidget*>{controls.exam.title, controls.exam.random, controls.exam.attachments});
  append(controls.question.kinds->buttons());
  append(controls.question.navigation.InOrder());
  append(std::initializer_list<QWidget*>{controls.question.text, controls.question.attachments,
                                         controls.question.oralToggle});
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    order.insert(order.end(), {controls.answers.boxes[i], controls.answers.options[i]});
  }
  append(std::initializer_list<QWidget*>{controls.answers.answer, controls.answers.separator,
                                         controls.answers.essay});
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace quorvantis
