// SPDX-License-Identifier: MIT
#include "desktop/main/CQuorvantisDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/DroppedFiles.h"
#include "desktop/controls/QtText.h"
#include "desktop/controls/QuestionDrag.h"
#include "desktop/dialogs/AboutDlg.h"
#include "desktop/dialogs/CScoreSetupDlg.h"
#include "desktop/main/RecoveryQuestion.h"
#include "desktop/main/controls/Attaching.h"
#include "desktop/main/menu/GuideDlg.h"
#include "desktop/main/menu/KeysDlg.h"
#include "host/ImportRules.h"
#include "model/document/ExamServices.h"
#include "platform/DebugOutput.h"
#include "platform/UserDialogs.h"
#include "platform/texts/EditorTexts.h"
#include "platform/texts/ExportTexts.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/MenuTexts.h"
#include "platform/texts/PrintTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "preview/PreviewSetup.h"
#include "shell/commands/PreviewCommand.h"
#include "shell/commands/PrintCommand.h"
#include "shell/commands/ScoreSetupCommand.h"
#include "shell/language/LanguageId.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <fstream>

namespace quorvantis {
namespace {

constexpr int kBetweenLooks = 1000;      // milliseconds; a change reaches the disk within two seconds
constexpr std::size_t kScoreButton = 5;  // among the large ones
constexpr int kOffScreen = 2000;         // pixels
constexpr int kHighestLine = 18;         // line height of a font: one-line fields are 20 pixels high

QuestionArea* MakeQuestionArea(const StringTable& strings, QWidget* parent) {
  auto* area = new QuestionArea(ToQString(strings.Text(text_id::kEditArea)), parent);
  area->setObjectName("questionArea");
  return area;
}

QWidget* MakeClientArea(QWidget* window) {
  auto* area = new QWidget(window);
  area->setObjectName("clientArea");
  return area;
}

/// A hidden dialog button; keys and assistive technology press it.
QPushButton* MakeHiddenButton(const char* name, QWidget* parent) {
  auto* button = new QPushButton(parent);
  NameControl(button, name, name);
  button->setFocusPolicy(Qt::NoFocus);
  button->setGeometry(0, 0, 0, 0);
  button->hide();
  return button;
}

/// An empty text if the file cannot be read.
QString ReadPage(const std::filesystem::path& file) {
  QFile page(PathToQString(file));
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

bool CanRead(const std::filesystem::path& file) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(file, ignored) && std::ifstream(file).is_open();
}

/// Opens a window that may stay open, or brings it to the front.
template <class Dialog, class... Values>
void ShowOnce(QWidget& parent, const Values&... values) {
  auto* dialog = parent.findChild<Dialog*>();
  if (dialog == nullptr) dialog = new Dialog(values..., &parent);
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

}  // namespace

CQuorvantisDlg::CQuorvantisDlg(FrameSetExam& exam, const ComposedPages& pages, WordDocuments& papers,
                               OfficeControl* office, DocumentExport exportDocument,
                               const LanguageLibrary* library, int languageId)
    : FittedWindow(kHighestLine),
      library_(library),
      life_(exam, *this, std::move(exportDocument), office),
      editor_(life_.Editor()),
      services_(exam.Services()),
      languageId_(languageId),
      pdf_(services_, *this),
      previews_(SetUpGateway(services_.applicationFolder, services_.strings, pages)),
      importWindows_(exam.Services(), library, *this),
      papers_(papers),
      import_(editor_, life_.Steps(), papers_, importWindows_, FindImportRules(services_.applicationFolder)),
      shownQuestion_(editor_, *this),
      pictures_(library),
      openRecent_(editor_),
      client_(MakeClientArea(this)),
      focusedField_(*client_),
      toolbar_(editor_, Commands(), services_.strings, pictures_, client_),
      examControls_(editor_, services_.strings, client_),
      questionArea_(MakeQuestionArea(services_.strings, client_)),
      question_(editor_, services_.strings, pictures_, client_),
      answers_(editor_, services_.strings, pictures_, client_),
      history_(life_.Steps(), examControls_, question_, answers_, services_),
      search_(editor_, examControls_, question_, answers_, *this),
      studio_(editor_, import_, importWindows_, papers_, *this),
      sheets_(editor_, pdf_, IsRightToLeft(languageId),
              {[this](PagePrinter::AskForPrinter choose) -> PreviewWindow& {
                 return RenewFor(std::move(choose));
               },
               [this](const std::filesystem::path& page) { PrintPage(page); }}),
      versions_(editor_, check_, *this, library == nullptr ? 0 : languageId),
      exchange_(editor_, life_.Steps(), *this),
      bank_(editor_, shownQuestion_, pdf_, IsRightToLeft(languageId),
            {[this](PagePrinter::AskForPrinter choose) -> PreviewWindow& {
               return RenewFor(std::move(choose));
             },
             [this](const std::filesystem::path& page) { PrintPage(page); }},
            *this),
      draw_(editor_, shownQuestion_, bank_, *this),
      recoveryFails_(new WindowNotice("recoveryFails", QStyle::SP_MessageBoxWarning, client_)),
      somethingIsWrong_(new WindowNotice("somethingIsWrong", QStyle::SP_MessageBoxWarning, client_)),
      printComes_(new WindowNotice("printComes", QStyle::SP_BrowserReload, client_)),
      check_(editor_, {examControls_, question_, answers_}, *toolbar_.InOrder()[kScoreButton], shownQuestion_,
             *somethingIsWrong_, *this),
      scroll_(*client_),
      cancel_(MakeHiddenButton("cancel", client_)),
      ok_(MakeHiddenButton("ok", client_)),
      printAgain_(MakeHiddenButton("printAgain", client_)),
      menuBar_(new MenuBar(
          WindowMenus(Controls(), editor_, shownQuestion_, focusedField_, services_.strings, MenuCommands())
              .Tables(),
          ToQString(services_.strings.Text(text_id::kMenuBar)), this)) {
  editor_.files.SetLongAnswersWhole(true);
  setWindowIcon(pictures_.Picture(kProgramIcon));
  setAcceptDrops(true);
  SetTabOrder(Controls());
  connect(this, &CQuorvantisDlg::FilesDropped, this, &CQuorvantisDlg::TakeFiles, Qt::QueuedConnection);
  const auto deliver = [this] { editor_.state.DeliverContentChanged(); };
  connect(this, &CQuorvantisDlg::ContentChangePosted, this, deliver, Qt::QueuedConnection);
  connect(cancel_, &QPushButton::clicked, this, &CQuorvantisDlg::EndUnasked);
  connect(ok_, &QPushButton::clicked, this, &CQuorvantisDlg::EndUnasked);
  ok_->setEnabled(false);  // so that Enter does not close the window
  connect(printAgain_, &QPushButton::clicked, this, &CQuorvantisDlg::Print);
  connect(&scroll_, &WindowScroll::Scrolled, this, &CQuorvantisDlg::Layout);
  SetFirstSize(*this, menuBar_->Height());
  OfferImport();
  connect(&recoveryTimer_, &QTimer::timeout, this, [this] { KeepRecovery(); });
  TitleChanged();
  question_.text->setFocus();
}

void CQuorvantisDlg::Begin() {
  life_.Begin();
  life_.KeepRecovery();
  recoveryTimer_.start(kBetweenLooks);
}

CQuorvantisDlg::~CQuorvantisDlg() {
  // The controls use the editor until they are destroyed; the base class would delete them after it.
  qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
  life_.End();  // the preview window is destroyed later, with the members
}

bool CQuorvantisDlg::OfferRecovery() {
  RecoveryQuestion question(services_.strings, this);
  return life_.OfferRecovery(question);
}

bool CQuorvantisDlg::Shows(const std::filesystem::path& file) const {
  std::error_code ignored;
  return std::filesystem::equivalent(editor_.state.FileName(), file, ignored);
}

ToolbarButtons::WindowCommands CQuorvantisDlg::Commands() {
  ToolbarButtons::WindowCommands commands;
  commands.importExam = [this] {
    import_.ImportQuestions();
    if (const auto paper = importWindows_.TakeWish()) studio_.WorkOutRules(*paper);
  };
  commands.scoreSetup = [this] { SetUpScores(); };
  commands.preview = [this] { Preview(); };
  commands.print = [this] { Print(); };
  return commands;
}

WindowMenus::Commands CQuorvantisDlg::MenuCommands() {
  WindowMenus::Commands commands;
  commands.hasRecent = [this] { return !openRecent_.IsEmpty(); };
  commands.recent = [this] { return openRecent_.Entries(); };
  commands.importPaper = [this] { studio_.ImportPaper(); };
  commands.importQuestions = [this] { exchange_.ImportQuestions(); };
  commands.exportPdf = [this] { ExportPdf(); };
  commands.exportQuestions = [this] { exchange_.ExportQuestions(); };
  commands.quit = [this] { close(); };
  commands.history = &history_;
  commands.search = &search_;
  commands.sheets = &sheets_;
  commands.check = &check_;
  commands.bank = [this] { bank_.Open(); };
  commands.draw = [this] { draw_.Open(); };
  commands.askedBefore = [this] { bank_.ShowAskedBefore(); };
  commands.canUndoImport = [this] { return import_.CanUndo(); };
  commands.undoImport = [this] { importWindows_.Undo(import_); };
  commands.versions = [this] { versions_.MakeVersions(); };
  commands.guide = [this] { ShowGuide(); };
  commands.keys = [this] { ShowKeys(); };
  commands.about = [this] { ShowAbout(); };
  return commands;
}

WindowControls CQuorvantisDlg::Controls() {
  return {toolbar_, examControls_,  questionArea_,     question_,
          answers_, recoveryFails_, somethingIsWrong_, printComes_};
}

void CQuorvantisDlg::PlaceParts() {
  const int menuHeight = menuBar_->Height();
  menuBar_->setGeometry(0, 0, width(), menuHeight);
  client_->setGeometry(0, menuHeight, width(), height() - menuHeight);
}

void CQuorvantisDlg::Layout() {
  PlaceControls(scroll_, Controls(), editor_, services_.debug);
}

/// Without the file with the import rules, Import is not offered in this run.
void CQuorvantisDlg::OfferImport() {
  if (CanRead(FindImportRules(services_.applicationFolder))) return;
  services_.debug.Line(u"CQuorvantisDlg::!file.Open");
  toolbar_.HideImport();
}

/// No message box: it would interrupt the user's typing.
void CQuorvantisDlg::KeepRecovery() {
  history_.Note();
  life_.LookAfterUnsaved();
  const std::error_code failure = life_.RecoveryFailure();
  if (!failure) return recoveryFails_->hide();
  const std::u16string why = FillMessage(services_.strings.Text(text_id::kCannotWrite),
                                         {PathToText(life_.RecoveryRoot()), Utf8ToUtf16(failure.message())});
  recoveryFails_->Tell(ToQString(services_.strings.Text(text_id::kRecoveryFails)), ToQString(why));
}

void CQuorvantisDlg::FormLoaded() {
  examControls_.Load();
  question_.Load();
  answers_.Load();
  importWindows_.ExamChanged();
  exchange_.ExamChanged();
  shownQuestion_.ExamChanged();
  history_.Note();
  search_.ExamChanged();
  check_.ExamChanged();
  bank_.ExamChanged();
  studio_.ExamChanged();
}

void CQuorvantisDlg::FormChanged() {
  const QPointer<QWidget> focused = focusWidget();
  examControls_.Refresh();
  question_.Refresh();
  answers_.Refresh();
  shownQuestion_.ExamChanged();
  Layout();
  history_.Note();
  search_.ExamChanged();
  check_.ExamChanged();
  bank_.ExamChanged();
  studio_.ExamChanged();
  if (focused && !focused->isVisibleTo(this)) question_.text->setFocus();
}

void CQuorvantisDlg::TitleChanged() {
  // Qt treats "[*]" in a title specially; doubled, it stands for itself.
  setWindowTitle(ToQString(editor_.state.WindowTitle()).replace("[*]", "[*][*]"));
  openRecent_.Note();
}

void CQuorvantisDlg::WarmBrowser() {
  if (!previewWindow_) RenewPreviewWindow();
}

void CQuorvantisDlg::RenewPreviewWindow() {
  previewWindow_.reset();
  previewWindow_ = previews_.Make();
  previewWindow_->SetOwner(*this);
  previewWindow_->LieOver(*this);
  connect(&*previewWindow_, &PreviewWindow::PrintProgressed, this, &CQuorvantisDlg::TellOfPrint);
  TellOfPrint();
}

/// Documents of the exam may take many seconds to convert.
void CQuorvantisDlg::TellOfPrint() {
  if (!previewWindow_->IsAboutToPrint()) return printComes_->hide();
  const auto text = [this](int number) { return ToQString(services_.strings.Text(number)); };
  printComes_->raise();
  printComes_->Tell(text(text_id::kPrintComes), text(text_id::kPrintWaits));
}

void CQuorvantisDlg::Preview() {
  PreviewCommand(editor_, life_.Office(), languageId_, [this](const std::filesystem::path& page) {
    RenewPreviewWindow();
    previewWindow_->Navigate(page);
    previewWindow_->Place(0, 0);
    previewWindow_->Show();
  }).Run();
}

void CQuorvantisDlg::Print() {
  check_.PrintBegins();
  PrintCommand(editor_, [this](const std::filesystem::path& page) {
    RenewPreviewWindow();
    PrintPage(page);
  }).Run();
}

void CQuorvantisDlg::PrintPage(const std::filesystem::path& page) {
  previewWindow_->Navigate(page);
  previewWindow_->Place(kOffScreen, kOffScreen);
  previewWindow_->Show();
  previewWindow_->StartPrintTimer();
  previewWindow_->Hide();
}

void CQuorvantisDlg::ExportPdf() {
  const std::filesystem::path target = pdf_.ChooseTarget(editor_.questions.Form().title);
  if (target.empty()) return;
  check_.PrintBegins();
  PrintCommand(editor_, [this, &target](const std::filesystem::path& page) {
    pdf_.Watch(RenewFor(pdf_.MakePrinter()).Printer(), target);
    PrintPage(page);
  }).Run();
}

PreviewWindow& CQuorvantisDlg::RenewFor(PagePrinter::AskForPrinter choose) {
  previews_.ChoosePrinterWith(std::move(choose));
  RenewPreviewWindow();
  previews_.ChoosePrinterWith({});
  return *previewWindow_;
}

void CQuorvantisDlg::ShowAbout() {
  AboutDlg(library_, this).exec();
}

void CQuorvantisDlg::ShowGuide() {
  const std::filesystem::path guide =
      FindGuide(library_ == nullptr ? kEnglish : library_->Id().value_or(kEnglish));
  const QString page = ReadPage(guide);
  const StringTable& strings = services_.strings;
  if (page.isEmpty())
    services_.dialogs.ShowError(FillMessage(strings.Text(text_id::kNoGuide), {PathToText(guide)}));
  else
    ShowOnce<GuideDlg>(*this, ToQString(strings.Text(text_id::kGuide)), page);
}

void CQuorvantisDlg::ShowKeys() {
  ShowOnce<KeysDlg>(*this, menuBar_->Menus(), services_.strings);
}

void CQuorvantisDlg::SetUpScores() {
  ScoreSetupCommand(editor_, [this](ScoreSetup& setup) {
    return CScoreSetupDlg(setup, *this, services_.strings, this).exec() == QDialog::Accepted;
  }).Run();
}

void CQuorvantisDlg::PreviewFromSetup(int show) {
  show != 0 ? Preview() : RenewPreviewWindow();
}

void CQuorvantisDlg::PostContentChanged() {
  shownQuestion_.ExamChanged();
  emit ContentChangePosted();
  history_.Note();
  search_.ExamChanged();
  check_.ExamChanged();
  bank_.ExamChanged();
  studio_.ExamChanged();
}

/// A preview covers the screen, and would hide the question that may follow.
void CQuorvantisDlg::closeEvent(QCloseEvent* event) {
  if (previewWindow_ && previewWindow_->IsOnScreen()) RenewPreviewWindow();
  event->setAccepted(endsUnasked_ || editor_.files.ConfirmClose());
  if (event->isAccepted()) studio_.MainWindowCloses();
}

void CQuorvantisDlg::EndUnasked() {
  endsUnasked_ = true;
  close();
}

/// Comes to the front, on whichever screen it is.
void CQuorvantisDlg::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  raise();
  connect(windowHandle(), &QWindow::screenChanged, this, &CQuorvantisDlg::ScreenChanged,
          Qt::UniqueConnection);
}

void CQuorvantisDlg::ScreenChanged() {
  LimitSize(*this, menuBar_->Height());
}

void CQuorvantisDlg::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceParts();
  Layout();
}

void CQuorvantisDlg::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const bool changesTexts = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
                            event->type() == QEvent::LayoutDirectionChange;
  if (!changesTexts || !isVisible()) return;
  if (menuBar_->Height() != client_->y()) LimitSize(*this, menuBar_->Height());
  PlaceParts();
  Layout();
}

/// Not every desktop has a window menu that a program can extend, so the window's background has one.
void CQuorvantisDlg::contextMenuEvent(QContextMenuEvent* event) {
  const StringTable& strings = services_.strings;
  const std::u16string about = strings.Text(text_id::kAbout);
  if (about.empty() && !import_.CanUndo()) return;
  auto* menu = new QMenu(this);
  menu->setObjectName("windowMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (!about.empty())
    connect(menu->addAction(ToQString(about)), &QAction::triggered, this, &CQuorvantisDlg::ShowAbout);
  if (import_.CanUndo())
    connect(menu->addAction(ToQString(strings.Text(text_id::kUndoImport))), &QAction::triggered, this,
            [this] { importWindows_.Undo(import_); });
  menu->popup(event->globalPos());
}

void CQuorvantisDlg::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    cancel_->click();
  } else if (event->key() != Qt::Key_F1) {  // there is no help for F1 to open, here or in a parent window
    QWidget::keyPressEvent(event);
  }
}

void CQuorvantisDlg::dragEnterEvent(QDragEnterEvent* event) {
  const bool busy = QApplication::activeModalWidget() != nullptr;
  const bool isWanted = QuestionDrag::Of(*event) != nullptr || HasLocalFiles(*event->mimeData());
  if (!busy && isWanted) event->acceptProposedAction();
}

/// Handling the files may ask questions, so it waits until the program that they were dragged from is
/// released.
void CQuorvantisDlg::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  if (const QuestionDrag* const question = QuestionDrag::Of(*event)) {
    QMetaObject::invokeMethod(
        this, [insert = question->Inserts()] { insert({}); }, Qt::QueuedConnection);
    return;
  }
  emit FilesDropped(event->mimeData()->urls());
}

/// If there is an exam among the files, it is opened; otherwise they are attached to the question.
void CQuorvantisDlg::TakeFiles(const QList<QUrl>& urls) {
  const std::vector<std::filesystem::path> files = LocalFiles(urls);
  const auto exam = std::ranges::find_if(files, IsExamFile);
  if (exam != files.end()) {
    OpenExam(*exam);
    return;
  }
  AttachToQuestion(editor_, files);
}

}  // namespace quorvantis
