// SPDX-License-Identifier: MIT
#include "desktop/bank/BankWindow.h"

#include "bank/tags/TagTexts.h"
#include "desktop/bank/desk/BankFoldersDlg.h"
#include "desktop/bank/hits/BankHitDelegate.h"
#include "desktop/bank/hits/BankSelection.h"
#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/texts/AskedTexts.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/DrawTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QHideEvent>
#include <QKeyEvent>
#include <QSplitter>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kFirstBankSize(720, 640);  // pixels
constexpr int kPauseInTyping = 120;        // milliseconds
constexpr int kBetweenLooks = 300;         // milliseconds

bool IsAmong(const std::vector<BankHit>& hits, const BankHit& sought) {
  return std::any_of(hits.begin(), hits.end(),
                     [&sought](const BankHit& hit) { return hit.question.id == sought.question.id; });
}

}  // namespace

BankWindow::BankWindow(BankDesk& desk, const ExamServices& services, BankActions actions, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      desk_(desk),
      strings_(services.strings),
      actions_(std::move(actions)),
      place_(services.applicationFolder, services.files, u"bank"),
      model_(services.strings, nullptr),
      thumbnails_(services, nullptr),
      query_(new BankQueryLine(services.strings, this)),
      list_(new BankHitsView(this)),
      pane_(new BankQuestionPane(services, actions_.makePage, this)),
      elsewhere_(new BankElsewhereLine(desk, this)),
      tags_(new BankTagLine(desk, services, this)),
      status_(new QLabel(this)),
      insert_(MakeButton("bankInsert", text_id::kBankInsert, &BankWindow::InsertChosen)),
      show_(MakeButton("bankShow", text_id::kBankShow, &BankWindow::ShowPage)),
      openExam_(MakeButton("bankOpenExam", text_id::kBankOpenExam, &BankWindow::OpenExam)),
      draw_(MakeButton("bankDraw", text_id::kDrawOfBank, &BankWindow::Draw)),
      askedBefore_(MakeButton("bankAskedBefore", text_id::kAskedEntry, &BankWindow::ShowAskedBefore)),
      folders_(MakeButton("bankEditFolders", text_id::kBankFolders, &BankWindow::EditFolders)) {
  setObjectName("bankWindow");
  setWindowTitle(Text(text_id::kBankTitle));
  SetUpList();
  NameControl(status_, "bankStatus", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kPauseInTyping);
  whileUpdating_.setInterval(kBetweenLooks);
  PlaceControls();
  RestorePlace();
  Connect();
  ShowChosen();
}

BankWindow::~BankWindow() {
  if (isVisible()) KeepPlace();
  desk_.disconnect(this);
}

QPushButton* BankWindow::MakeButton(const char* name, int text, void (BankWindow::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void BankWindow::SetUpList() {
  NameControl(list_, "bankHits", Text(text_id::kBankHits));
  model_.ShowPicturesOf(thumbnails_);
  list_->setModel(&model_);
  list_->setItemDelegate(new BankHitDelegate(list_));
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->InsertWith([this](const std::vector<BankQuestion>& questions, std::optional<int> after) {
    return Insert(questions, after);
  });
  list_->installEventFilter(this);
}

void BankWindow::PlaceControls() {
  auto* sides = new QSplitter(Qt::Vertical, this);
  sides->addWidget(list_);
  sides->addWidget(pane_);
  sides->setStretchFactor(0, 1);
  sides->setStretchFactor(1, 1);
  sides->setChildrenCollapsible(false);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {insert_, show_, openExam_}) buttons->addWidget(button);
  buttons->addStretch();
  auto* ofTheBank = new QHBoxLayout;
  ofTheBank->addWidget(status_, 1);
  ofTheBank->addWidget(draw_);
  ofTheBank->addWidget(askedBefore_);
  ofTheBank->addWidget(folders_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(query_);
  layout->addWidget(sides, 1);
  layout->addWidget(elsewhere_);
  layout->addWidget(tags_);
  layout->addLayout(buttons);
  layout->addLayout(ofTheBank);
}

void BankWindow::Connect() {
  connect(query_, &BankQueryLine::QueryChanged, &whenQuiet_, qOverload<>(&QTimer::start));
  connect(query_, &BankQueryLine::QueryChanged, this, [this] { revealed_.reset(); });
  connect(elsewhere_, &BankElsewhereLine::UseChosen, this, &BankWindow::Reveal);
  connect(elsewhere_, &BankElsewhereLine::Outdated, this, [this] {
    revealed_.reset();
    Search();
  });
  connect(query_, &BankQueryLine::Left, this, [this] {
    if (whenQuiet_.isActive()) Search();
    list_->setFocus();
  });
  connect(&whenQuiet_, &QTimer::timeout, this, &BankWindow::Search);
  connect(&whileUpdating_, &QTimer::timeout, this, &BankWindow::ShowState);
  connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &BankWindow::ShowChosen);
  connect(list_, &QListView::doubleClicked, this, &BankWindow::InsertChosen);
  connect(pane_, &BankQuestionPane::Left, list_, [this] { list_->setFocus(); });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { tags_->Show(SelectedHits(*list_, model_)); });
  connect(tags_, &BankTagLine::Written, &model_, &BankHitsModel::ShowTags);
  connect(tags_, &BankTagLine::Written, &desk_, &BankDesk::FindAgainIfRunning);
  connect(&desk_, &BankDesk::Found, this, &BankWindow::ShowHits);
  connect(&desk_, &BankDesk::Updated, this, &BankWindow::Search);
  connect(&desk_, &BankDesk::UpdateChanged, this, &BankWindow::ShowState);
}

void BankWindow::Appear() {
  const bool wasHidden = !isVisible();
  show();
  raise();
  activateWindow();
  query_->FocusWords();
  if (!wasHidden) return;
  Search();
  desk_.Update();
}

void BankWindow::Search() {
  whenQuiet_.stop();
  if (!isVisible()) return;
  desk_.Find(query_->Query());
}

/// The question that was chosen stays so while it is found.
void BankWindow::ShowHits() {
  std::vector<BankHit> hits = desk_.Hits().hits;
  if (revealed_ && !IsAmong(hits, *revealed_)) hits.insert(hits.begin(), *revealed_);
  const std::int64_t chosen = kept_;
  const std::set<std::int64_t> selected = SelectedQuestions(*list_, model_);
  model_.Show(hits);
  const auto same = std::ranges::find(hits, chosen, [](const BankHit& hit) { return hit.question.id; });
  const auto row = same == hits.end() ? 0 : same - hits.begin();
  if (!hits.empty()) list_->setCurrentIndex(model_.index(static_cast<int>(row)));
  if (same != hits.end()) SelectQuestions(*list_, model_, selected);
  tags_->Show(SelectedHits(*list_, model_));
  ShowChosen();
  ShowState();
}

void BankWindow::Reveal(const BankUse& use) {
  const auto question = desk_.Question(use.question, use.exam, use.number);
  if (question) {
    revealed_ = BankHit{*question};
    kept_ = question->id;
  }
  const bool wasHidden = !isVisible();
  Appear();
  if (!wasHidden) ShowHits();
  list_->setFocus();
  if (question) return;
  told_ = ToQString(FillMessage(strings_.Text(text_id::kBankChanged),
                                {PathToText(use.exam.path), FormatInteger(use.number)}));
  ShowState();
  desk_.Update();
}

const BankHit* BankWindow::Chosen() const {
  const QModelIndex current = list_->currentIndex();
  return current.isValid() ? &model_.HitAt(current.row()) : nullptr;
}

void BankWindow::ShowChosen() {
  const BankHit* const hit = Chosen();
  for (QPushButton* button : {insert_, show_, openExam_}) button->setEnabled(hit != nullptr);
  kept_ = hit == nullptr ? 0 : hit->question.id;
  told_.clear();
  elsewhere_->Show(hit == nullptr ? nullptr : &hit->question);
  pane_->Show(hit);
}

QString BankWindow::StateOfSearch() const {
  const BankHits& hits = desk_.Hits();
  if (hits.problem.IsAnything()) return ToQString(ProblemText(hits.problem, strings_));
  if (!hits.unreadTags.empty()) {
    const UnreadTags& unread = hits.unreadTags.front();
    return ToQString(TagProblemText(unread.result, unread.file, strings_));
  }
  if (hits.total == 0) return Text(desk_.Folders().empty() ? text_id::kBankNoFolders : text_id::kBankNothing);
  if (hits.total <= hits.hits.size())
    return ToQString(FillMessage(strings_.Text(text_id::kBankFound), {FormatCount(hits.hits.size())}));
  return ToQString(FillMessage(strings_.Text(text_id::kBankFoundMany),
                               {FormatCount(hits.total), FormatCount(hits.hits.size())}));
}

QString BankWindow::StateOfUpdate() const {
  if (desk_.IsUpdating()) {
    const BankDesk::Done done = desk_.UpdateDone();
    return ToQString(
        FillMessage(strings_.Text(text_id::kBankUpdating), {FormatCount(done.exams), FormatCount(done.of)}));
  }
  return ToQString(ProblemText(desk_.LastUpdate().problem, strings_));
}

void BankWindow::ShowState() {
  desk_.IsUpdating() ? whileUpdating_.start() : whileUpdating_.stop();
  QStringList parts{told_.isEmpty() ? StateOfSearch() : told_, StateOfUpdate()};
  parts.removeAll(QString());
  const QString state = parts.join(' ');
  if (state == status_->text()) return;
  status_->setText(state);
  status_->setAccessibleName(state);
}

QString BankWindow::Insert(const std::vector<BankQuestion>& questions, std::optional<int> after) {
  told_ = actions_.insert(questions, after);
  ShowState();
  return told_;
}

void BankWindow::InsertChosen() {
  const std::vector<BankQuestion> questions = SelectedBankQuestions(*list_, model_);
  if (!questions.empty()) Insert(questions, std::nullopt);
}

void BankWindow::ShowPage() {
  if (const BankHit* const hit = Chosen()) actions_.show(hit->question);
}

void BankWindow::OpenExam() {
  if (const BankHit* const hit = Chosen()) actions_.openExam(BankQuestion(hit->question));
}

void BankWindow::EditFolders() {
  BankFoldersDlg(desk_, strings_, this).exec();
  activateWindow();  // some systems return to the main window, which the next Escape would close
  Search();
}

bool BankWindow::event(QEvent* event) {
  return DecideShortcut(*event) || QDialog::event(event);
}

/// Enter inserts what is chosen; upwards from the first row leads back to the words.
bool BankWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_ && event->type() == QEvent::KeyPress) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
      InsertChosen();
      return true;
    }
    if (key.key() == Qt::Key_Up && list_->currentIndex().row() <= 0) {
      query_->FocusWords();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void BankWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    KeepPlace();
    desk_.CancelUpdate();
  }
  QDialog::hideEvent(event);
}

void BankWindow::RestorePlace() {
  resize(kFirstBankSize);
  const WindowPlace kept = place_.Read();
  PlaceCompanion(*this, *parentWidget(), {kept.x, kept.y, kept.width, kept.height});
}

void BankWindow::KeepPlace() const {
  place_.Write({x(), y(), width(), height()});
}

QString BankWindow::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
