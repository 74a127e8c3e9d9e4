#include "workbench/ReportPage.h"

#include "workbench/ReportDocument.h"
#include "workbench/ResultsPage.h"
#include "workbench/Texts.h"

#include <QtWidgets>

namespace Tarnwise {

ReportPage::ReportPage(ResultsPage& results, QWidget* parent) : QWidget(parent), results_(results) {
  Named(this, "reportPage", tr("Report"));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(MakeButtons());
  layout->addWidget(MakePreview(), 1);
  connect(&results_, &ResultsPage::StateChanged, this, &ReportPage::ShowState);
  connect(&results_, &ResultsPage::Progressed, progress_, &QProgressBar::setValue);
  ShowState();
}

QWidget* ReportPage::MakeButtons() {
  auto* const line = new QWidget;
  auto* const row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  message_ = Named(new QLabel, "reportMessage", tr("State of the report"));
  message_->setWordWrap(true);
  progress_ = Named(new QProgressBar, "reportProgress", tr("Progress"));
  progress_->setRange(0, 1000);
  progress_->setMaximumWidth(220);
  cancel_ = Named(new QPushButton(tr("Ca&ncel")), "reportCancel", tr("Cancel the computation"));
  compute_ = Named(new QPushButton(tr("&Compute")), "reportCompute", tr("Compute the results"));
  row->addWidget(message_, 1);
  for (QWidget* const widget : std::initializer_list<QWidget*>{progress_, cancel_, compute_}) row->addWidget(widget);
  const std::tuple<ReportKind, const char*, QString> kinds[] = {
      {ReportKind::WebPage, "saveWebPage", tr("Save as &web page…")},
      {ReportKind::Pdf, "savePdf", tr("Save as &PDF…")},
      {ReportKind::Table, "saveTable", tr("Save results as C&SV…")},
      {ReportKind::RScript, "saveScript", tr("Save &R script…")}};
  for (const auto& [kind, name, text] : kinds) {
    auto* const button = Named(new QPushButton(text), name, QString(text).remove(QLatin1Char('&')));
    saves_.push_back(button);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, kind = kind] { AskAndSave(kind); });
  }
  connect(cancel_, &QPushButton::clicked, &results_, &ResultsPage::Cancel);
  connect(compute_, &QPushButton::clicked, &results_, &ResultsPage::Compute);
  return line;
}

// It is paper, whatever the desktop's colours are.
QWidget* ReportPage::MakePreview() {
  preview_ = Named(new QTextBrowser, "reportPreview", tr("Preview of the report"));
  QPalette paper = preview_->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    paper.setColor(group, QPalette::Base, Qt::white);
    paper.setColor(group, QPalette::Text, Qt::black);
  }
  preview_->setPalette(paper);
  preview_->setTabChangesFocus(true);
  preview_->setOpenLinks(false);
  return preview_;
}

void ReportPage::ShowState() {
  const bool busy = results_.IsSolving();
  const bool there = results_.Shown() != nullptr && !busy;
  progress_->setVisible(busy);
  cancel_->setVisible(busy);
  compute_->setVisible(!busy && !there);
  for (QPushButton* const button : saves_) button->setVisible(there);
  message_->setText(there ? tr("As it will be saved:") : busy ? tr("The results are computed.") : results_.Message());
  if (!there) {
    shown_.reset();
    preview_->clear();
  } else if (isVisible()) {
    ShowReport();
  }
}

void ReportPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowState();
}

void ReportPage::ShowReport() {
  if (shown_ == results_.Shown()) return;
  shown_ = results_.Shown();
  FillReport(ReportNow(results_.Newest()), *preview_->document());
  preview_->moveCursor(QTextCursor::Start);
}

void ReportPage::AskAndSave(std::optional<ReportKind> kind) {
  if (results_.Shown() == nullptr || results_.IsSolving()) {
    QMessageBox::information(this, tr("Save report"), tr("There are no results to report yet."));
  } else if (AskAndSaveReport(window(), kind, results_.Newest())) {
    Q_EMIT Told(tr("The report was saved."));
  }
}

}  // namespace Tarnwise
