// SPDX-License-Identifier: MIT
#include "desktop/CQuorvantisDlg.h"

#include "desktop/DroppedFiles.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "desktop/WindowLayout.h"
#include "platform/ExamServices.h"
#include "platform/Texts.h"
#include "platform/posix/ApplicationFolder.h"
#include "shell/CloseSequence.h"
#include "shell/CodePageChoice.h"
#include "shell/PreviewCommand.h"
#include "shell/PrintCommand.h"
#include "text/MessageText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr QSize kSmallestSize(792, 646);
constexpr QSize kFirstSize(870, 675);

QGroupBox* MakeQuestionArea(const StringTable& strings, QWidget* parent) {
  auto* area = new QGroupBox(ToQString(strings.Text(text_id::kEditArea)), parent);
  area->setObjectName("questionArea");
  return area;
}

/// A text of the table with Qt's places for values.
QString PlacedText(const StringTable& strings, int id) {
  return ToQString(FillMessage(strings.Text(id), {u"%1", u"%2"}));
}

PreviewTexts TextsOfPreviews(const StringTable& strings) {
  return {PlacedText(strings, text_id::kPreparing),      PlacedText(strings, text_id::kCannotShow),
          PlacedText(strings, text_id::kFileMissing),    PlacedText(strings, text_id::kNeedsProgram),
          PlacedText(strings, text_id::kFirstPagesOnly), PlacedText(strings, text_id::kBeginningOnly)};
}

GatewaySetup SetUpGateway(const FrameSetExam& exam, const ComposedPages& pages) {
  return {exam.Services().applicationFolder, pages, ExecutableFolder() / "flash-player",
          ConverterPrograms::Find(), TextsOfPreviews(exam.Services().strings)};
}

}  // namespace

CQuorvantisDlg::CQuorvantisDlg(FrameSetExam& exam, const ComposedPages& pages, DocumentExport exportDocument)
    : exam_(exam),
      editor_(exam, *this, std::move(exportDocument)),
      previews_(SetUpGateway(exam, pages), *this),
      files_(editor_, {[this] { Preview(); }, [this] { Print(); }}, exam.Services().strings, this),
      examControls_(editor_, exam.Services().strings, this),
      questionArea_(MakeQuestionArea(exam.Services().strings, this)),
      question_(editor_, exam.Services().strings, questionArea_),
      answers_(editor_, exam.Services().strings, questionArea_) {
  exam.SetHostMode(1);
  setWindowIcon(Picture("quorvantis.svg"));
  setAcceptDrops(true);
  ArrangeWindow(this, {files_, examControls_, questionArea_, question_, answers_});
  connect(this, &CQuorvantisDlg::FilesDropped, this, &CQuorvantisDlg::TakeFiles, Qt::QueuedConnection);
  const auto deliver = [this] { editor_.state.DeliverContentChanged(); };
  connect(this, &CQuorvantisDlg::ContentChangePosted, this, deliver, Qt::QueuedConnection);
  setMinimumSize(kSmallestSize);
  resize(kFirstSize);
  editor_.questions.LoadCurrentQuestion();
  TitleChanged();
  question_.text->setFocus();
}

CQuorvantisDlg::~CQuorvantisDlg() {
  // The controls speak to the editor until they are gone; the base class would delete them after it.
  qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
  RemoveWorkCopies(exam_);
}

void CQuorvantisDlg::FormLoaded() {
  examControls_.Load();
  question_.Load();
  answers_.Load();
  FormChanged();
}

void CQuorvantisDlg::FormChanged() {
  const QPointer<QWidget> focused = focusWidget();
  examControls_.Refresh();
  question_.Refresh();
  answers_.Refresh();
  if (focused && !focused->isVisibleTo(this)) question_.text->setFocus();
}

void CQuorvantisDlg::TitleChanged() {
  // Qt gives "[*]" in a title a meaning of its own; twice, it stands for itself.
  setWindowTitle(ToQString(editor_.state.WindowTitle()).replace("[*]", "[*][*]"));
}

void CQuorvantisDlg::Preview() {
  PreviewCommand(editor_.questions, exam_, kEnglish, [this](const std::filesystem::path& page) {
    previews_.NewSession().ShowPreview(page);
  }).Run();
}

void CQuorvantisDlg::Print() {
  PrintCommand(editor_.questions, exam_, [this](const std::filesystem::path& page) {
    previews_.NewSession().PrintOffScreen(page);
  }).Run();
}

void CQuorvantisDlg::PreviewFinished() {
  exam_.PrefixAttachmentPaths(0);
}

void CQuorvantisDlg::PostContentChanged() {
  emit ContentChangePosted();
}

void CQuorvantisDlg::closeEvent(QCloseEvent* event) {
  event->setAccepted(endsUnasked_ || editor_.files.ConfirmClose());
}

void CQuorvantisDlg::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) {
    QWidget::keyPressEvent(event);
    return;
  }
  endsUnasked_ = true;
  close();
}

void CQuorvantisDlg::dragEnterEvent(QDragEnterEvent* event) {
  const bool busy = QApplication::activeModalWidget() != nullptr;
  if (!busy && HasLocalFiles(*event->mimeData())) event->acceptProposedAction();
}

/// What the files lead to may ask questions, so it waits until the program that they come from is released.
void CQuorvantisDlg::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  emit FilesDropped(event->mimeData()->urls());
}

/// An exam among the files is opened; only without one are they attached to the question.
void CQuorvantisDlg::TakeFiles(const QList<QUrl>& urls) {
  const std::vector<std::filesystem::path> files = LocalFiles(urls);
  const auto exam = std::ranges::find_if(files, IsExamFile);
  if (exam != files.end()) {
    OpenExam(*exam);
    return;
  }
  for (const std::filesystem::path& file : files) editor_.attachments.AttachQuestionFile(file);
}

}  // namespace quorvantis
