// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QScrollBar>

#include <fstream>
#include <map>
#include <set>

namespace quorvantis::test {
namespace {

class WindowLayout : public WindowTest {
 protected:
  std::map<QWidget*, QRect> Places() {
    std::map<QWidget*, QRect> places;
    for (auto* control : Area().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (control->isVisible() && control->objectName() != "questionArea")
        places[control] = control->geometry();
    }
    return places;
  }

  void ExpectLaidOut() {
    const auto places = Places();
    for (const auto& [control, place] : places) {
      EXPECT_TRUE(Area().rect().contains(place)) << qPrintable(control->objectName());
      for (const auto& [other, area] : places)
        EXPECT_TRUE(control == other || !place.intersects(area)) << qPrintable(control->objectName());
    }
  }

  bool Wrote(std::u16string_view line) {
    return std::ranges::find(world.debug.lines, line) != world.debug.lines.end();
  }
};

TEST_F(WindowLayout, HasNoOverlapsAndAMirrorImageInEverySizeAndKind) {
  for (const bool lists : {false, true}) {
    exam.examAttachmentNames[0] = exam.Question(1).attachmentNames[0] = lists ? u"file.jpg" : u"";
    Open();
    window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);  // the test's screen is small
    for (const QSize size : {QSize(792, 646), QSize(1601, 1003)}) {
      ResizeArea(size);
      for (const char* kind : {"kindChoice", "kindFillIn", "kindEssay", "kindOral"}) {
        SCOPED_TRACE(testing::Message() << kind << lists << size.width());
        Click(kind);
        window->setLayoutDirection(Qt::LeftToRight);
        Click("random");
        ExpectLaidOut();
        const auto places = Places();
        window->setLayoutDirection(Qt::RightToLeft);
        ExpectLaidOut();
        for (auto [control, place] : places) {
          place.moveRight(window->width() - 1 - place.x());
          EXPECT_EQ(control->geometry(), place) << qPrintable(control->objectName());
        }
      }
    }
  }
}

TEST_F(WindowLayout, TheMenuIsAboveTheAreaAndTakesNothingFromIt) {
  Open();
  const int menu = Control("menuBar").height();
  EXPECT_EQ(Control("menuBar").geometry(), QRect(0, 0, window->width(), menu));
  EXPECT_EQ(Area().geometry(), window->rect().adjusted(0, menu, 0, 0));
  const QSize screen = window->screen()->size();
  EXPECT_EQ(window->maximumSize(), screen);
  const QSize room = window->screen()->availableSize() - QSize(0, 40);
  EXPECT_EQ(window->minimumSize(), QSize(792, 646 + menu).boundedTo(room));
  EXPECT_EQ(window->size(), QSize(870, 675 + menu).boundedTo(room));
  window->setLayoutDirection(Qt::RightToLeft);
  QFont large = Control("menuBar").font();
  large.setPixelSize(30);
  Control("menuBar").setFont(large);
  window->setFont(large);
  EXPECT_GT(Control("menuBar").height(), menu);
  EXPECT_EQ(Area().y(), Control("menuBar").height());
}

TEST_F(WindowLayout, ScrollsEveryControlIntoASmallWindow) {
  exam.examAttachmentNames[0] = exam.Question(1).attachmentNames[0] = u"file.jpg";
  Open();
  window->setMinimumSize(1, 1);
  auto &across = Control<QScrollBar>("scrollAcross"), &down = Control<QScrollBar>("scrollDown");
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    window->setLayoutDirection(direction);
    ResizeArea({600, 432});
    ASSERT_TRUE(across.isVisible() && down.isVisible());
    std::set<QWidget*> unreached;
    for (auto* control : Area().findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
      if (control->isVisible()) unreached.insert(control);
    }
    for (const int x : {0, across.maximum()}) {
      for (const int y : {0, down.maximum()}) {
        across.setValue(x);
        down.setValue(y);
        std::erase_if(unreached, [&](QWidget* control) {
          const QRect at = control->geometry();
          return Area().childAt(at.topLeft()) == control && Area().childAt(at.bottomRight()) == control;
        });
      }
    }
    for (const QWidget* control : unreached) ADD_FAILURE() << direction << qPrintable(control->objectName());
    Press("questionText", Qt::Key_Backtab);  // to the last button of the row above
    EXPECT_EQ(Area().childAt(QApplication::focusWidget()->geometry().center()), QApplication::focusWidget());
    ResizeArea({792, 646});
    ASSERT_FALSE(across.isVisible() || down.isVisible());
    ExpectLaidOut();
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

/// Difference between the brightest and the darkest pixel, 0 to 255.
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
  for (auto* control : Area().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!control->isVisible()) continue;
    EXPECT_GT(Contrast(control->grab().toImage()), 60) << qPrintable(control->objectName());
  }
  window.reset();
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace quorvantis::test
