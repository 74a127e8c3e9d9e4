#include "workbench/MainWindow.h"

#include "modelfiles/WholeFile.h"
#include "project/SessionText.h"
#include "project/StoreSession.h"
#include "workbench/AttributesPage.h"
#include "workbench/DataPage.h"
#include "workbench/FileActions.h"
#include "workbench/JudgeSession.h"
#include "workbench/JudgmentsPage.h"
#include "workbench/ReportPage.h"
#include "workbench/ResultsPage.h"
#include "workbench/Texts.h"

#include <QtWidgets>

#include <utility>

namespace Tarnwise {

MainWindow::MainWindow() : files_(new FileActions(document_, this)) {
  Named(this, "workbench", tr("Tarnwise"));
  setAcceptDrops(true);
  MakePages();
  MakeMenus();
  connect(&document_, &Document::Changed, this, &MainWindow::RestorePage);
  connect(&document_, &Document::Changed, this, &MainWindow::ShowState);
  connect(&document_, &Document::Refused, this,
          [this](const QString& reason) { QMessageBox::warning(this, tr("Not possible"), reason); });
  const auto tell = [this](const QString& text) { statusBar()->showMessage(text, 15000); };
  connect(files_, &FileActions::Told, this, tell);
  connect(results_, &ResultsPage::Told, this, tell);
  connect(report_, &ReportPage::Told, this, tell);
  statusBar()->setObjectName(QStringLiteral("status"));
  statusBar()->setAccessibleName(tr("Status"));
  resize(1180, 760);
  RestoreState();
  ShowState();
}

void MainWindow::KeepState() {
  QSettings settings;
  settings.setValue(QStringLiteral("geometry"), saveGeometry());
  settings.setValue(QStringLiteral("page"), tabs_->currentIndex());
  for (const QSplitter* const splitter : findChildren<QSplitter*>()) {
    settings.setValue("splitters/" + splitter->objectName(), splitter->saveState());
  }
}

void MainWindow::RestoreState() {
  const QSettings settings;
  restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
  for (QSplitter* const splitter : findChildren<QSplitter*>()) {
    splitter->restoreState(settings.value("splitters/" + splitter->objectName()).toByteArray());
  }
  const int page = settings.value(QStringLiteral("page"), 0).toInt();
  if (page > 0 && page < tabs_->count()) lastPage_ = page;
}

// With nothing open the first page is the one that leads on.
void MainWindow::RestorePage() {
  if (!lastPage_ || document_.Path().isEmpty()) return;
  tabs_->setCurrentIndex(*std::exchange(lastPage_, std::nullopt));
}

// The pages know the document, and they go before it.
MainWindow::~MainWindow() {
  hide();
  delete wizard_;
  disconnect(&document_, nullptr, nullptr, nullptr);
  delete takeCentralWidget();
}

QWidget* MainWindow::MakeAdvice() {
  auto* const line = Named(new QFrame, "adviceLine", tr("What is missing"));
  line->setFrameShape(QFrame::StyledPanel);
  line->setAutoFillBackground(true);
  line->setBackgroundRole(QPalette::AlternateBase);
  auto* const layout = new QHBoxLayout(line);
  layout->setContentsMargins(10, 4, 6, 4);
  advice_ = Named(new QLabel, "advice", tr("What is missing"));
  advice_->setWordWrap(true);
  go_ = Named(new QPushButton, "adviceGo", tr("Go to the page"));
  // The pages stay where they are while it is hidden.
  QSizePolicy policy = go_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  go_->setSizePolicy(policy);
  layout->addWidget(advice_, 1);
  layout->addWidget(go_);
  connect(go_, &QPushButton::clicked, this, [this] { ShowPage(AdviceFor(document_.Data()).Where); });
  return line;
}

void MainWindow::MakePages() {
  auto* const centre = new QWidget;
  auto* const layout = new QVBoxLayout(centre);
  layout->setContentsMargins(8, 8, 8, 4);
  layout->addWidget(MakeAdvice());
  tabs_ = Named(new QTabWidget, "pages", tr("Pages"));
  tabs_->setDocumentMode(true);
  layout->addWidget(tabs_, 1);
  setCentralWidget(centre);
  data_ = new DataPage(document_);
  attributes_ = new AttributesPage(document_);
  judgments_ = new JudgmentsPage(document_);
  results_ = new ResultsPage(document_);
  report_ = new ReportPage(*results_);
  for (QWidget* const page : std::initializer_list<QWidget*>{data_, attributes_, judgments_, results_, report_}) {
    tabs_->addTab(page, QString::number(tabs_->count() + 1) + "  " + page->accessibleName());
    auto* const shortcut =
        new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + tabs_->count())), this);
    connect(shortcut, &QShortcut::activated, this, [this, page] { tabs_->setCurrentWidget(page); });
  }
  connect(tabs_, &QTabWidget::currentChanged, this, [this] {
    lastPage_.reset();
    ShowState();
  });
  connect(data_, &DataPage::OpenWanted, files_, &FileActions::AskAndOpen);
  connect(data_, &DataPage::PasteWanted, files_, &FileActions::PasteTable);
  connect(judgments_, &JudgmentsPage::ElicitWanted, this, &MainWindow::Elicit);
  connect(judgments_, &JudgmentsPage::ImportWanted, this, [this] {
    if (files_->AskAndImportJudgments()) judgments_->ChooseSession(document_.Data().Sessions.size() - 1);
  });
}

void MainWindow::MakeMenus() {
  MakeFileMenu();
  MakeEditMenu();
  QMenu* const view = menuBar()->addMenu(tr("&View"));
  for (int i = 0; i < tabs_->count(); ++i) {
    view->addAction(tabs_->widget(i)->accessibleName() + tr("\tCtrl+%1").arg(i + 1), this,
                    [this, i] { tabs_->setCurrentIndex(i); });
  }
  QMenu* const help = menuBar()->addMenu(tr("&Help"));
  help->addAction(tr("&About Tarnwise"), this, [this] {
    QMessageBox::about(
        this, tr("About Tarnwise"),
        tr("Tarnwise asks a decision maker for the weights of a data envelopment analysis, and works out "
           "what they mean for each unit.\n\nThis program contains GLPK and QCustomPlot and is "
           "distributed under the GPL."));
  });
  Named(menuBar(), "menus", tr("Menus"));
}

void MainWindow::MakeFileMenu() {
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  locked_.push_back(file->addAction(tr("&New"), QKeySequence::New, files_, &FileActions::New));
  locked_.push_back(file->addAction(tr("&Open…"), QKeySequence::Open, files_, &FileActions::AskAndOpen));
  QMenu* const recent = file->addMenu(tr("Open &recent"));
  locked_.push_back(recent->menuAction());
  connect(recent, &QMenu::aboutToShow, files_, [this, recent] { files_->FillRecent(*recent); });
  locked_.push_back(file->addAction(tr("&Paste a table…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), files_,
                                    &FileActions::PasteTable));
  file->addSeparator();
  save_ = file->addAction(tr("&Save"), QKeySequence::Save, files_, &FileActions::Save);
  file->addAction(tr("Save &as…"), QKeySequence::SaveAs, files_, &FileActions::AskAndSave);
  locked_.push_back(file->addAction(tr("Save repor&t…"), report_, [this] { report_->AskAndSave(std::nullopt); }));
  file->addSeparator();
  file->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
}

void MainWindow::MakeEditMenu() {
  QMenu* const edit = menuBar()->addMenu(tr("&Edit"));
  undo_ = edit->addAction(tr("&Undo"), QKeySequence::Undo, &document_, &Document::Undo);
  redo_ = edit->addAction(tr("&Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &document_, &Document::Redo);
  edit->addSeparator();
  locked_.push_back(edit->addAction(tr("&Paste"), QKeySequence::Paste, this, &MainWindow::Paste));
}

void MainWindow::Paste() {
  if (document_.IsEmpty()) {
    files_->PasteTable();
  } else if (tabs_->currentWidget() == data_) {
    data_->Paste();
  }
}

bool MainWindow::Open(const QString& path) { return files_->Open(path); }

void MainWindow::ShowPage(PageKind page) { tabs_->setCurrentIndex(static_cast<int>(page)); }

void MainWindow::ShowState() {
  const Advice advice = AdviceFor(document_.Data());
  const bool open = wizard_ != nullptr;
  advice_->setText((advice.IsMissing ? tr("Missing: ") : QString()) + advice.Text);
  go_->setVisible(tabs_->currentIndex() != static_cast<int>(advice.Where));
  go_->setText(tr("&Go to %1").arg(tabs_->widget(static_cast<int>(advice.Where))->accessibleName()));
  const QString name =
      document_.Path().isEmpty() ? FromText(document_.Data().Name) : QFileInfo(document_.Path()).fileName();
  setWindowTitle((name.isEmpty() ? tr("New project") : name) + "[*] – " + tr("Tarnwise"));
  setWindowModified(document_.IsChanged());
  undo_->setEnabled(document_.CanUndo() && !open);
  redo_->setEnabled(document_.CanRedo() && !open);
  undo_->setText(document_.CanUndo() ? tr("&Undo: %1").arg(document_.UndoText()) : tr("&Undo"));
  redo_->setText(document_.CanRedo() ? tr("&Redo: %1").arg(document_.RedoText()) : tr("&Redo"));
  save_->setEnabled(document_.IsChanged() || document_.Path().isEmpty());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (wizard_ != nullptr) {
    wizard_->End();
    event->ignore();
    return;
  }
  if (!files_->MayLeave()) return event->ignore();
  KeepState();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() && wizard_ == nullptr) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.isEmpty() || !urls.first().isLocalFile()) return;
  event->acceptProposedAction();
  // After the drop is through: the program it comes from waits for it.
  QTimer::singleShot(0, this, [this, path = urls.first().toLocalFile()] { Open(path); });
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow() || wizard_ != nullptr) return;
  QTimer::singleShot(0, files_, &FileActions::LookAtFile);
}

// The judgments go into the file the moment they are made, and so does what was changed before.
bool MainWindow::MayJudge() {
  if (!document_.IsChanged() && !document_.Path().isEmpty()) return true;
  const auto answer = QMessageBox::question(
      this, tr("Save first?"), tr("With the project saved, the judgments go into its file the moment they are made."),
      QMessageBox::Save | QMessageBox::Ignore | QMessageBox::Cancel, QMessageBox::Save);
  if (answer == QMessageBox::Save) return files_->Save();
  return answer == QMessageBox::Ignore;
}

bool MainWindow::WantsToBegin(const JudgeSession& session) {
  QStringList lines;
  for (const String& line : MeaningLines(session.Model())) lines += FromText(line);
  for (const String& note : session.Model().Notes) lines += FromText(note);
  QMessageBox box(QMessageBox::Information, tr("Before you judge"), lines.join(QStringLiteral("\n\n")),
                  QMessageBox::Ok | QMessageBox::Cancel, this);
  box.button(QMessageBox::Ok)->setText(tr("&Begin"));
  return lines.isEmpty() || box.exec() == QMessageBox::Ok;
}

void MainWindow::Elicit(std::optional<std::size_t> resume) {
  if (wizard_ != nullptr || !MayJudge()) return;
  try {
    wizard_ = new JudgeSession(document_.Data(), {!resume, resume}, this);
  } catch (const ModelFault& fault) {
    QMessageBox::warning(this, tr("Elicit"), FromText(fault.what()));
    return;
  }
  stored_.reset();
  connect(wizard_, &JudgeSession::Judged, this, &MainWindow::TakeJudgments);
  connect(wizard_, &JudgeSession::Hinted, judgments_, &JudgmentsPage::ShowHint);
  connect(wizard_, &JudgeSession::Ended, this, [this] {
    wizard_->deleteLater();
    wizard_ = nullptr;
    LockForWizard(false);
  });
  if (!WantsToBegin(*wizard_)) {
    delete std::exchange(wizard_, nullptr);
    return;
  }
  LockForWizard(true);
  wizard_->Show();
}

void MainWindow::TakeJudgments(const JudgmentSession& session, bool again) {
  JudgmentSession kept = session;
  kept.Made = ToText(QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
  const bool store = !document_.IsChanged() && !document_.Path().isEmpty();
  document_.Edit(tr("Judgments"), [&](Project& project) {
    if (again && stored_) {
      project.Sessions[*stored_] = kept;
    } else {
      stored_ = AddSession(project, kept);
    }
  });
  if (store) files_->Save();
}

void MainWindow::LockForWizard(bool locked) {
  for (QAction* const action : locked_) action->setEnabled(!locked);
  data_->setEnabled(!locked);
  attributes_->setEnabled(!locked);
  results_->setEnabled(!locked);
  report_->setEnabled(!locked);
  judgments_->ShowWizardOpen(locked);
  results_->Hide(locked);
  if (locked) ShowPage(PageKind::Judgments);
  ShowState();
  if (!locked && stored_) {
    judgments_->ChooseSession(*stored_);
    ShowPage(PageKind::Results);
  }
}

}  // namespace Tarnwise
