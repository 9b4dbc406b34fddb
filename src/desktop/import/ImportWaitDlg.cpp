// SPDX-License-Identifier: MIT
#include "desktop/import/ImportWaitDlg.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kPaintInterval = 40;  // milliseconds
constexpr int kWidth = 360;         // pixels

QLabel* MakeLine(const QString& text, QWidget* parent) {
  auto* line = new QLabel(text, parent);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  return line;
}

}  // namespace

ImportWaitDlg::ImportWaitDlg(const DialogText& texts, const QString& document, const QString& hint,
                             QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar(this)) {
  setObjectName("importWait");
  setWindowTitle(texts(control_id::kCaption));
  setWindowModality(Qt::ApplicationModal);
  bar_->setRange(0, 0);
  bar_->setTextVisible(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeLine(texts(control_id::kFirstLabel), this));
  layout->addWidget(MakeLine(document, this));
  layout->addWidget(bar_);
  layout->addWidget(MakeLine(hint, this));
  setMinimumWidth(kWidth);
  show();
  Paint();
}

void ImportWaitDlg::ShowPicturesRead(std::size_t done, std::size_t total) {
  bar_->setRange(0, static_cast<int>(total));
  bar_->setValue(static_cast<int>(done));
}

bool ImportWaitDlg::IsCancelled() {
  if (sincePaint_.hasExpired(kPaintInterval)) Paint();
  return isCancelled_;
}

void ImportWaitDlg::Paint() {
  QCoreApplication::processEvents();
  sincePaint_.start();
}

}  // namespace quorvantis
