// SPDX-License-Identifier: MIT
#include "AttachmentFiles.h"
#include "PreviewTest.h"
#include "preview/SheetLayout.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPageRanges>
#include <QPrintDialog>
#include <QSignalSpy>
#include <QTimer>

namespace quorvantis::test {
namespace {

class PrintTest : public PreviewTest {
 protected:
  std::filesystem::path Paper(const std::u16string& body) {
    std::filesystem::path page = app / "exam_Print.htm";
    pages.Add(page, u"<HTML><BODY>" + body + u"</BODY></HTML>");
    return page;
  }

  /// Prints `page` to a PDF file, as the Print command does.
  void BeginPrint(const std::filesystem::path& page) {
    Windows().ChoosePrinterWith([this](QPrinter& printer) {
      ++asked;
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(QString::fromStdString(pdf.string()));
      return true;
    });
    PrintOffScreen(page);
  }
  void AwaitPaper() {
    QSignalSpy printed(&Window().Printer(), &PagePrinter::Printed);
    ASSERT_TRUE(WaitFor([&] { return !printed.isEmpty(); }));
    ASSERT_TRUE(printed.front().front().toBool());
  }
  void Print(const std::filesystem::path& page) {
    BeginPrint(page);
    AwaitPaper();
  }

  QString Poppler(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  QString Text() { return Poppler("pdftotext", {"-raw", QString::fromStdString(pdf.string()), "-"}); }

  std::filesystem::path pdf = folder / "paper.pdf";
  int asked = 0;
};

TEST_F(PrintTest, PutsEveryQuestionOnPaper) {
  std::u16string questions;
  for (int number = 1; number <= 120; ++number) {
    questions += QString("<p>Question-%1 打印</p>").arg(number).toStdU16String();
  }
  PrintOffScreen(Paper(questions));
  QTest::qWait(100);
  Print(Paper(questions));  // two quick calls ask once
  EXPECT_TRUE(Window().testAttribute(Qt::WA_DontShowOnScreen));
  const QString text = Text();
  for (int number = 1; number <= 120; ++number) {
    EXPECT_TRUE(text.contains(QString("Question-%1 打印").arg(number))) << number;
  }
  QTest::qWait(600);
  EXPECT_EQ(asked, 1);
}

TEST_F(PrintTest, NumbersThePagesOfSheets) {
  std::u16string lines;
  for (int i = 0; i < 150; ++i) lines += u"<p>line</p>";
  Windows().ChoosePrinterWith([this](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf.string()));
    return true;
  });
  PrintOffScreen(Paper(lines));
  Window().Printer().NumberPages(false);
  AwaitPaper();
  const QStringList printed = Text().split('\f', Qt::SkipEmptyParts);
  ASSERT_GT(printed.size(), 2);
  EXPECT_TRUE(printed[1].contains(QString("2 / %1").arg(printed.size())));
  // The same pages on a printer, as pictures.
  QPrinter printer(QPrinter::HighResolution);
  printer.setResolution(72);
  const std::filesystem::path paper = folder / "painted.pdf";
  printer.setOutputFileName(QString::fromStdString(paper.string()));
  printer.setPageRanges(QPageRanges::fromString("2-3"));
  SheetsOnPrinter sheets(printer);
  std::filesystem::copy_file(pdf, sheets.Draft());
  std::optional<bool> done;
  sheets.Print(false, [&done](bool succeeded) { done = succeeded; });
  ASSERT_TRUE(WaitFor([&] { return done.has_value(); }));
  EXPECT_TRUE(*done);
  EXPECT_EQ(CountSheets(paper), 2);
}

TEST_F(PrintTest, WaitsForDocumentsAndPrintsAllTheirPages) {
  if (programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no LibreOffice or poppler-utils";
  Attach("long.doc", RichText("one\\page two\\page three"));
  Attach("note.txt", "lines of the note");
  Print(
      Paper(u"Read this<iframe width=690 height=350 src=\"~TEMP/home/long.doc\" ></iframe>"
            u"<iframe width=690 height=350 src=\"~TEMP/home/note.txt\" ></iframe>End"));
  const QString text = Text();
  EXPECT_TRUE(text.contains("Read this"));
  EXPECT_TRUE(text.contains("lines of the note"));
  EXPECT_FALSE(text.contains("Preparing"));
  // Two lines of heading, then one line per picture.
  const QString pictures = Poppler("pdfimages", {"-list", QString::fromStdString(pdf.string())});
  EXPECT_EQ(pictures.trimmed().count('\n') - 1, 3) << pictures.toStdString();
}

/// The next exam removes the files of the last one, and may have others under the same names.
TEST_F(PrintTest, HasTheFilesOfItsMoment) {
  const auto picture = Attach("dot.bmp", SmallBitmap());
  const auto note = Attach("note.txt", "lines of the note");
  BeginPrint(Paper(
      u"<img src=\"~TEMP/home/dot.bmp\"><iframe width=690 height=60 src=\"~TEMP/home/note.txt\" ></iframe>"));
  std::filesystem::remove(picture);
  std::filesystem::remove(note);
  WriteBytes(note, "another note");
  AwaitPaper();
  const QString text = Text();
  EXPECT_TRUE(text.contains("lines of the note")) << text.toStdString();
  EXPECT_FALSE(text.contains("is gone")) << text.toStdString();
  const auto entries = std::filesystem::directory_iterator(app / "~TEMP");
  EXPECT_EQ(std::distance(begin(entries), end(entries)), 1) << "names are left behind";
}

TEST_F(PrintTest, AskedForAgainDoesNotConvertAgain) {
  const auto runs = folder / "runs";
  const auto slow = WriteBytes(folder / "slow", "#!/bin/sh\necho run >>" + runs.string() + "\nsleep 2\n");
  std::filesystem::permissions(slow, std::filesystem::perms::owner_all);
  programs.pdfImages = QString::fromStdString(slow.string());
  Attach("slow.pdf", kPortable);
  const auto withDocument = Paper(u"<iframe width=690 height=60 src=\"~TEMP/home/slow.pdf\" ></iframe>");
  const auto count = [&] { return std::filesystem::exists(runs) ? ReadBytes(runs).size() / 4 : 0; };
  BeginPrint(withDocument);
  ASSERT_TRUE(WaitFor([&] { return count() == 1; }));
  BeginPrint(withDocument);
  AwaitPaper();
  EXPECT_EQ(count(), 1U);
  EXPECT_EQ(asked, 1);
}

TEST_F(PrintTest, DoesNotTakeTheKeysOfSomebodyWhoWrites) {
  QLineEdit field;
  field.show();
  field.setFocus();
  PrintOffScreen(Paper(u"x"));
  QElapsedTimer sinceKey;
  qint64 pause = -1;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    if (auto* const found = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
      if (pause < 0) pause = sinceKey.elapsed();
      found->reject();
    }
  });
  look.start(20);
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(&field, Qt::Key_A);
    sinceKey.start();
    QTest::qWait(100);
  }
  EXPECT_LT(pause, 0) << "it came while keys were pressed";
  EXPECT_TRUE(WaitFor([&] { return pause >= 0; })) << "it does not come";
  EXPECT_EQ(field.text().size(), 20);
}

TEST_F(PrintTest, TheUserIsAskedForThePrinter) {
  PrintOffScreen(Paper(u"x"));
  QSignalSpy printed(&Window().Printer(), &PagePrinter::Printed);
  bool dialogSeen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    dialogSeen = true;
    dialog->reject();
  });
  look.start(50);
  ASSERT_TRUE(WaitFor([&] { return !printed.isEmpty(); }));
  EXPECT_TRUE(dialogSeen);
  EXPECT_FALSE(printed.front().front().toBool());
}

/// The browser crashes if the page goes away meanwhile.
TEST_F(PrintTest, LeavingCallsOffAPrintOrLetsItsPaperBeMade) {
  enum class Leaving { WhileAsked, WhilePrinting, AtOnce };
  for (const Leaving leaving : {Leaving::WhileAsked, Leaving::WhilePrinting, Leaving::AtOnce}) {
    SCOPED_TRACE(static_cast<int>(leaving));
    pdf = folder / ("paper" + std::to_string(static_cast<int>(leaving)) + ".pdf");
    bool over = false;
    Windows().ChoosePrinterWith([&](QPrinter& printer) {
      if (leaving == Leaving::WhileAsked) {
        Window().Leave();
        QTest::qWait(1500);
      }
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(QString::fromStdString(pdf.string()));
      QTimer::singleShot(0, [&] {
        if (leaving == Leaving::WhilePrinting) Window().Leave();
        if (leaving == Leaving::AtOnce) window.reset();
        over = true;
      });
      return true;
    });
    Preview(Compose("SEE.htm", "On paper"));
    Window().PrintByKeystroke();
    ASSERT_TRUE(WaitFor([&] { return over; }));
    QTest::qWait(1500);
    EXPECT_EQ(Text().contains("On paper"), leaving != Leaving::WhileAsked);
  }
}

}  // namespace
}  // namespace quorvantis::test
