// SPDX-License-Identifier: MIT
#include "desktop/main/BankPages.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "editor/WorkCopies.h"
#include "model/WorkFolderNames.h"
#include "platform/StringTable.h"
#include "platform/TextNumbers.h"
#include "preview/PreviewSetup.h"
#include "render/sheets/PaperPage.h"
#include "render/sheets/SheetStyle.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <QStackedLayout>

#include <utility>

namespace quorvantis {
namespace {

constexpr int kUntilTold = 300;    // milliseconds
constexpr int kNoticeMargin = 12;  // pixels

}  // namespace

bool IsStillSo(const ExamQuestion& now, const BankQuestion& question) {
  return now.text == question.text && now.options == question.options;
}

std::u16string NoLongerSoText(const BankQuestion& question, const StringTable& strings) {
  return FillMessage(strings.Text(text_id::kBankChanged),
                     {PathToText(question.exam.path), FormatInteger(question.number)});
}

BankPages::BankPages(const ExamServices& services, std::function<int()> takeNumber,
                     bool languageIsRightToLeft, QWidget* parent)
    : BankPageView(parent),
      services_(services),
      takeNumber_(std::move(takeNumber)),
      languageIsRightToLeft_(languageIsRightToLeft),
      pane_(new PagePane(SetUpGateway(services.applicationFolder, services.strings, pages_),
                         ToQString(kSheetScript), this)),
      notice_(new QLabel(this)),
      reading_(nullptr) {
  NameControl(pane_, "bankPage", ToQString(services.strings.Text(text_id::kBankAsPage)));
  NameControl(notice_, "bankPageNotice", {});
  notice_->setTextFormat(Qt::PlainText);
  notice_->setWordWrap(true);
  notice_->setMargin(kNoticeMargin);
  notice_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  auto* const layout = new QStackedLayout(this);
  layout->addWidget(notice_);
  layout->addWidget(pane_);
  setFocusProxy(pane_);
  whileReading_.setSingleShot(true);
  whileReading_.setInterval(kUntilTold);
  connect(&whileReading_, &QTimer::timeout, this,
          [this] { ShowNotice(services_.strings.Text(text_id::kBankPageComes)); });
  connect(pane_, &PagePane::EscapePressed, this, &BankPageView::Left);
}

/// The browser refers to the pages.
BankPages::~BankPages() {
  reading_.Drop();
  delete pane_;
}

void BankPages::ShowQuestion(const BankQuestion& question) {
  wanted_ = question;
  isWanted_ = false;
  if (!whileReading_.isActive()) whileReading_.start();
  if (!reading_.IsRunning()) Begin();
}

void BankPages::ShowNothing() {
  wanted_.reset();
  isWanted_ = false;
  ShowNotice({});
}

void BankPages::Begin() {
  const auto folder = AttachmentWorkRoot(services_.applicationFolder) /
                      (std::string(kLookedAtFolder) + std::to_string(takeNumber_()));
  isWanted_ = true;
  reading_.Start([this, folder, question = *std::exchange(wanted_, std::nullopt)](const auto&) {
    const auto peeked =
        std::make_shared<const PeekedQuestion>(services_, folder, question.exam.path, question.number);
    return BackgroundRun::Finish([this, question, peeked] { Take(question, peeked); });
  });
}

/// Empty if the question can be shown.
std::u16string BankPages::WhyNot(const BankQuestion& question, const PeekedQuestion& peeked) const {
  if (!peeked.IsOpened())
    return FillMessage(services_.strings.Text(text_id::kTakenFileGone), {PathToText(question.exam.path)});
  const bool isSo = peeked.IsThere() && IsStillSo(peeked.Question(), question);
  return isSo ? std::u16string() : NoLongerSoText(question, services_.strings);
}

/// Another question may have been asked for meanwhile, or none.
void BankPages::Take(const BankQuestion& question, std::shared_ptr<const PeekedQuestion> peeked) {
  if (wanted_) return Begin();
  if (!isWanted_) return;
  if (const std::u16string problem = WhyNot(question, *peeked); !problem.empty()) return ShowNotice(problem);
  whileReading_.stop();
  const auto page = services_.applicationFolder / ("exam_Question" + std::to_string(++shownPages_) + ".htm");
  pages_.Clear();
  pages_.Add(page, ComposeQuestion(peeked->Exam(), question.number,
                                   {Sheet::Paper, {}, false, languageIsRightToLeft_}));
  pane_->Show(page);
  shown_ = std::move(peeked);
  static_cast<QStackedLayout&>(*layout()).setCurrentWidget(pane_);
}

void BankPages::ShowNotice(const std::u16string& text) {
  whileReading_.stop();
  notice_->setText(ToQString(text));
  notice_->setAccessibleName(notice_->text());
  static_cast<QStackedLayout&>(*layout()).setCurrentWidget(notice_);
  pages_.Clear();
  pane_->Clear();
  shown_.reset();
}

}  // namespace quorvantis
