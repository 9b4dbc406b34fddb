// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "desktop/layout/Layout.h"

#include <QLabel>
#include <QScrollBar>

#include <fstream>
#include <set>

namespace quorvantis::test {
namespace {

class WindowLayout : public WindowTest {
 protected:
  PixelSize TextSize(const char* name) {
    auto& label = Control<QLabel>(name);
    const QSize size = label.fontMetrics().size(Qt::TextSingleLine, label.text());
    return {size.width(), size.height()};
  }

  LayoutInput Input(QuestionKind kind, bool lists) {
    LayoutInput input;
    input.client = {window->width(), window->height()};
    input.enabled = {true, true, false, true, true, true, true, true, true};
    input.titleLabel = TextSize("titleLabel");
    auto& random = Control<QAbstractButton>("random");
    input.randomTextWidth = random.fontMetrics().size(Qt::TextSingleLine, random.text()).width();
    input.examAttachmentsLabel = TextSize("examAttachmentsLabel");
    input.examListVisible = input.questionListVisible = lists;
    input.questionLabel = TextSize("questionLabel");
    input.oralToggle = {Control("oralToggle").width(), Control("oralToggle").height()};
    input.answerLabel = TextSize("answerLabel");
    input.essayLabel = TextSize("essayLabel");
    input.kind = kind;
    return input;
  }

  void ExpectAt(const char* name, std::optional<PixelRect> place) {
    if (!place) return;
    if (window->isRightToLeft()) place = Mirrored(*place, window->width());
    const QRect expected(place->x, place->y, place->width, place->height);
    EXPECT_EQ(QRect(Control(name).mapTo(window.get(), QPoint()), Control(name).size()), expected) << name;
  }

  void ExpectLaidOut(QuestionKind kind, bool lists) {
    const LayoutPlaces places = quorvantis::Layout(Input(kind, lists));
    const auto expectRow = [this](const auto& row, std::initializer_list<const char*> names) {
      std::size_t index = 0;
      for (const char* name : names) ExpectAt(name, row[index++]);
    };
    expectRow(places.toolbar,
              {"new", "open", "import", "save", "saveAs", "scoreSetup", "attachFiles", "preview", "print"});
    expectRow(places.kinds, {"kindChoice", "kindFillIn", "kindEssay", "kindOral"});
    expectRow(places.navigation, {"back10", "previous", "next", "forward10", "insertQuestion",
                                  "deleteQuestion", "attachToQuestion"});
    expectRow(places.boxes, {"boxA", "boxB", "boxC", "boxD", "boxE"});
    expectRow(places.options, {"optionA", "optionB", "optionC", "optionD", "optionE"});
    const std::pair<const char*, std::optional<PixelRect>> others[] = {
        {"titleLabel", places.titleLabel},
        {"title", places.title},
        {"random", places.random},
        {"examAttachmentsLabel", places.examAttachmentsLabel},
        {"examAttachments", places.examAttachments},
        {"questionArea", places.questionArea},
        {"questionLabel", places.questionLabel},
        {"questionNumber", places.number},
        {"questionText", places.text},
        {"questionAttachments", places.attachments},
        {"oralToggle", places.oralToggle},
        {"answerLabel", places.answerLabel},
        {"answer", places.answer},
        {"listSeparator", places.listSeparator},
        {"essayLabel", places.essayLabel},
        {"essay", places.essay}};
    for (const auto& [name, place] : others) ExpectAt(name, place);
  }

  bool Wrote(std::u16string_view line) {
    return std::ranges::find(world.debug.lines, line) != world.debug.lines.end();
  }
};

TEST_F(WindowLayout, IsTheSameOnTheScreenInEverySizeAndKind) {
  const std::pair<const char*, QuestionKind> kinds[] = {{"kindChoice", QuestionKind::Choice},
                                                        {"kindFillIn", QuestionKind::FillIn},
                                                        {"kindEssay", QuestionKind::Essay},
                                                        {"kindOral", QuestionKind::Oral}};
  for (const bool lists : {false, true}) {
    exam.examAttachmentNames[0] = exam.Question(1).attachmentNames[0] = lists ? u"file.jpg" : u"";
    Open();
    window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);  // the screen of a test is small
    for (const QSize size : {QSize(792, 646), QSize(1601, 1003)}) {
      window->resize(size);
      for (const auto& [button, kind] : kinds) {
        Click(button);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
          SCOPED_TRACE(testing::Message() << button << lists << size.width() << direction);
          window->setLayoutDirection(direction);
          Click("random");
          ExpectLaidOut(kind, lists);
        }
      }
    }
  }
}

TEST_F(WindowLayout, ScrollsEveryControlIntoASmallWindow) {
  exam.examAttachmentNames[0] = exam.Question(1).attachmentNames[0] = u"file.jpg";
  Open();
  window->setMinimumSize(1, 1);
  auto &across = Control<QScrollBar>("scrollAcross"), &down = Control<QScrollBar>("scrollDown");
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    window->setLayoutDirection(direction);
    window->resize(600, 432);
    ASSERT_TRUE(across.isVisible() && down.isVisible());
    std::set<QWidget*> unreached;
    for (auto* control : window->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
      if (control->isVisible()) unreached.insert(control);
    }
    for (const int x : {0, across.maximum()}) {
      for (const int y : {0, down.maximum()}) {
        across.setValue(x);
        down.setValue(y);
        std::erase_if(unreached, [&](QWidget* control) {
          const QRect at = control->geometry();
          return window->childAt(at.topLeft()) == control && window->childAt(at.bottomRight()) == control;
        });
      }
    }
    for (const QWidget* control : unreached) ADD_FAILURE() << direction << qPrintable(control->objectName());
    Press("questionText", Qt::Key_Backtab);  // to the last button of the row above
    EXPECT_EQ(window->childAt(QApplication::focusWidget()->geometry().center()), QApplication::focusWidget());
    window->resize(792, 646);
    ASSERT_FALSE(across.isVisible() || down.isVisible());
    ExpectLaidOut(QuestionKind::Choice, true);
  }
}

TEST_F(WindowLayout, ImportIsThereOnlyWithItsRules) {
  Open();
  EXPECT_FALSE(Control("import").isVisible() || Control("import").isEnabled());
  EXPECT_TRUE(Wrote(u"CQuorvantisDlg::!file.Open"));
  EXPECT_TRUE(Wrote(u"CQuorvantisDlg::Layout button 2 is disabled"));
  world.debug.lines.clear();
  std::ofstream(folder / "app" / "ImportExam.ini") << "[ExamRepository]\n";
  Open();
  EXPECT_EQ(Control("save").x(), 280);
  EXPECT_TRUE(world.debug.lines.empty());
}

/// Distance of the brightest and the darkest spot, 0 to 255.
int Contrast(const QImage& image) {
  int lightest = 0;
  int darkest = 255;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      lightest = std::max(lightest, qGray(image.pixel(x, y)));
      darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
  }
  return lightest - darkest;
}

TEST_F(WindowLayout, EverythingCanBeReadOnADarkDesktop) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x38, 0x38, 0x38), QColor(0x22, 0x22, 0x22)));
  exam.title = exam.Question(1).text = exam.Question(1).options[0] = u"MMM";
  exam.examAttachmentNames[0] = u"MMM.jpg";
  Open();
  EXPECT_LT(qGray(window->grab().toImage().pixel(2, 2)), 80);
  for (auto* control : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!control->isVisible()) continue;
    EXPECT_GT(Contrast(control->grab().toImage()), 60) << qPrintable(control->objectName());
  }
  window.reset();
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace quorvantis::test
