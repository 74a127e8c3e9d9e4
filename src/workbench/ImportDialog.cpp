#include "workbench/ImportDialog.h"

#include "modelfiles/WholeFile.h"
#include "project/Sha256.h"
#include "project/Shown.h"
#include "workbench/Texts.h"

#include <QtWidgets>

namespace Tarnwise {

namespace {

constexpr std::size_t kPreviewRows = 20;
enum RoleChoice { kUnused, kUnitNames, kInput, kOutput };

// By their places in the boxes; the first choice is to find it out.
const std::vector<char> kDelimiters = {'\0', ',', ';', '\t', '|'};
const std::vector<char> kDecimals = {'\0', '.', ','};
const std::vector<char> kThousands = {'\0', '.', ',', ' ', '\''};
const std::vector<std::optional<TextEncoding>> kEncodings = {
    std::nullopt, TextEncoding::Utf8, TextEncoding::Windows1252, TextEncoding::Utf16Le, TextEncoding::Utf16Be};

template <class Value>
Value Chosen(const QComboBox& box, const std::vector<Value>& values) {
  return values[static_cast<std::size_t>(std::max(0, box.currentIndex()))];
}

std::optional<char> ChosenSign(char sign) { return sign == '\0' ? std::nullopt : std::optional<char>(sign); }

// Faults name the command line's options; here they are boxes.
QString InWindowsWords(QString text) {
  const std::pair<const char*, QString> words[] = {
      {"--no-header", ImportDialog::tr("“First row”")},      {"--header", ImportDialog::tr("“First row”")},
      {"--delimiter", ImportDialog::tr("“Separator”")},      {"--decimal", ImportDialog::tr("“Decimal sign”")},
      {"--thousands", ImportDialog::tr("“Thousands mark”")}, {"--encoding", ImportDialog::tr("“Encoding”")},
      {"--missing", ImportDialog::tr("an empty cell")}};
  for (const auto& [option, word] : words) text.replace(QLatin1String(option), word);
  return text;
}

QString NameOfSeparator(char separator) {
  switch (separator) {
    case ',': return ImportDialog::tr("comma");
    case ';': return ImportDialog::tr("semicolon");
    case '\t': return ImportDialog::tr("tab");
    case '|': return ImportDialog::tr("vertical bar");
    default: return QString(QLatin1Char(separator));
  }
}

QString NameOfDecimalSign(char sign) { return sign == ',' ? ImportDialog::tr("comma") : ImportDialog::tr("point"); }

bool IsNumeric(const CsvTable& table, std::size_t column) {
  bool any = false;
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    const std::string_view cell = table.Cell(row, column);
    if (IsMissingText(cell)) continue;
    if (!ReadingsOf(cell).Any()) return false;
    any = true;
  }
  return any;
}

// The first column of texts names the units.
int UnitColumnOf(const CsvTable& table) {
  for (std::size_t j = 0; j < table.Columns(); ++j) {
    if (!IsNumeric(table, j)) return static_cast<int>(j);
  }
  return 0;
}

std::vector<std::size_t> NumericColumns(const CsvTable& table) {
  std::vector<std::size_t> columns;
  for (std::size_t j = 0; j < table.Columns(); ++j) {
    if (IsNumeric(table, j)) columns.push_back(j);
  }
  return columns;
}

}  // namespace

ImportDialog::ImportDialog(std::vector<char> bytes, QString name, QWidget* parent)
    : QDialog(parent), bytes_(std::move(bytes)), name_(std::move(name)) {
  setWindowTitle(tr("Import %1").arg(name_));
  setObjectName(QStringLiteral("importDialog"));
  setAccessibleName(windowTitle());
  auto* const layout = new QVBoxLayout(this);
  auto* const choices = new QHBoxLayout;
  layout->addLayout(choices);
  delimiter_ = AddChoice("delimiter", tr("&Separator"),
                         {tr("Found out"), tr("Comma"), tr("Semicolon"), tr("Tab"), tr("Vertical bar")});
  decimal_ = AddChoice("decimal", tr("&Decimal sign"), {tr("Found out"), tr("Point: 1.5"), tr("Comma: 1,5")});
  thousands_ = AddChoice("thousands", tr("&Thousands mark"),
                         {tr("None"), tr("Point"), tr("Comma"), tr("Blank"), tr("Apostrophe")});
  encoding_ =
      AddChoice("encoding", tr("&Encoding"), {tr("Found out"), "UTF-8", "Windows-1252", "UTF-16LE", "UTF-16BE"});
  header_ = AddChoice("header", tr("&First row"), {tr("Found out"), tr("Names of columns"), tr("Data")});
  understood_ = Named(new QLabel, "understood", tr("What was understood"));
  understood_->setWordWrap(true);
  layout->addWidget(understood_);
  preview_ = Named(new QTableWidget, "preview", tr("Preview of the first rows, with a role for each column"));
  preview_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  preview_->setTabKeyNavigation(false);
  layout->addWidget(preview_, 1);
  advice_ = Named(new QLabel, "importAdvice", tr("What is missing"));
  advice_->setWordWrap(true);
  layout->addWidget(advice_);
  buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  Named(buttons_, "importButtons", tr("Import or cancel"));
  buttons_->button(QDialogButtonBox::Ok)->setText(tr("&Import"));
  Named(buttons_->button(QDialogButtonBox::Ok), "importOk", tr("Import"));
  Named(buttons_->button(QDialogButtonBox::Cancel), "importCancel", tr("Cancel"));
  connect(buttons_, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
  layout->addWidget(buttons_);
  resize(860, 560);
  ReadAgain();
}

QComboBox* ImportDialog::AddChoice(const char* objectName, const QString& label, const QStringList& choices) {
  auto* const column = new QVBoxLayout;
  auto* const title = new QLabel(label);
  auto* const box = Named(new QComboBox, objectName, QString(label).remove(QLatin1Char('&')));
  box->addItems(choices);
  title->setBuddy(box);
  column->addWidget(title);
  column->addWidget(box);
  static_cast<QHBoxLayout*>(layout()->itemAt(0)->layout())->addLayout(column);
  connect(box, &QComboBox::currentIndexChanged, this, &ImportDialog::ReadAgain);
  return box;
}

CsvOptions ImportDialog::Csv() const {
  CsvOptions options;
  options.Delimiter = ChosenSign(Chosen(*delimiter_, kDelimiters));
  options.Encoding = Chosen(*encoding_, kEncodings);
  if (header_->currentIndex() > 0) options.Header = header_->currentIndex() == 1;
  return options;
}

NumberOptions ImportDialog::Numbers() const {
  NumberOptions options;
  options.Decimal = ChosenSign(Chosen(*decimal_, kDecimals));
  options.Thousands = ChosenSign(Chosen(*thousands_, kThousands));
  return options;
}

void ImportDialog::ReadAgain() {
  try {
    CsvOptions options = Csv();
    options.MostRows = kPreviewRows;
    const CsvTable table = ReadCsv(bytes_, options);
    Show(table);
    const FoundFormat format = FindFormat(table, NumericColumns(table), Numbers());
    const QString seen = format.Seen ? QString() : tr(" (no number has one)");
    understood_->setText(tr("Understood: separator %1, decimal sign %2, encoding %3, %4, %5.")
                             .arg(NameOfSeparator(table.Delimiter), NameOfDecimalSign(format.Format.Decimal) + seen,
                                  QString::fromUtf8(NameOf(table.Encoding)),
                                  table.Header ? tr("names of columns in the first row") : tr("data in the first row"),
                                  RowsText(table.RowsInFile())));
    CheckRoles();
  } catch (const ModelFault& fault) {
    understood_->setText(tr("Not understood yet."));
    Tell(InWindowsWords(FromText(fault.what())), true);
  }
}

void ImportDialog::Show(const CsvTable& table) {
  const bool same = columns_ == table.Names;
  columns_ = table.Names;
  if (!same) {
    preview_->clear();
    preview_->setColumnCount(static_cast<int>(table.Columns()));
  }
  preview_->setRowCount(static_cast<int>(table.Rows()) + 1);
  QStringList names;
  for (const String& name : table.Names) names += FromText(name);
  preview_->setHorizontalHeaderLabels(names);
  QStringList rows = {tr("Role")};
  for (std::size_t row = 0; row < table.Rows(); ++row) {
    rows += QString::number(row + 1);
    for (std::size_t j = 0; j < table.Columns(); ++j) {
      const std::string_view cell = table.Cell(row, j);
      auto* const item = new QTableWidgetItem(QString::fromUtf8(cell.data(), static_cast<qsizetype>(cell.size())));
      if (IsNumeric(table, j)) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      preview_->setItem(static_cast<int>(row) + 1, static_cast<int>(j), item);
    }
  }
  preview_->setVerticalHeaderLabels(rows);
  if (!same) ShowRoles(table);
}

void ImportDialog::ShowRoles(const CsvTable& table) {
  const int units = UnitColumnOf(table);
  for (int j = 0; j < preview_->columnCount(); ++j) {
    const QString name = FromText(columns_[static_cast<std::size_t>(j)]);
    auto* const box = Named(new QComboBox, "role", tr("Role of %1").arg(name));
    box->addItems({tr("Not used"), tr("Names of units"), tr("Input: less is better"), tr("Output: more is better")});
    box->setCurrentIndex(j == units ? kUnitNames : kUnused);
    connect(box, &QComboBox::currentIndexChanged, this, &ImportDialog::CheckRoles);
    preview_->setCellWidget(0, j, box);
  }
  preview_->resizeColumnsToContents();
  for (int j = 0; j < preview_->columnCount(); ++j) {
    preview_->setColumnWidth(j, std::clamp(preview_->columnWidth(j), RoleBox(j)->sizeHint().width(), 280));
  }
}

QComboBox* ImportDialog::RoleBox(int column) const { return static_cast<QComboBox*>(preview_->cellWidget(0, column)); }

void ImportDialog::Tell(const QString& text, bool isFault) {
  advice_->setText(text);
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(!isFault);
}

void ImportDialog::CheckRoles() {
  int names = 0;
  int used = 0;
  for (int j = 0; j < preview_->columnCount(); ++j) {
    const int role = RoleBox(j)->currentIndex();
    names += role == kUnitNames ? 1 : 0;
    used += role == kInput || role == kOutput ? 1 : 0;
  }
  if (names != 1) return Tell(tr("One column has to hold the names of the units."), true);
  Tell(used > 0 ? QString() : tr("Say which columns are inputs and outputs, here or later on the page Data."), false);
}

TableOptions ImportDialog::Options() const {
  TableOptions options;
  options.Csv = Csv();
  options.Numbers = Numbers();
  for (int j = 0; j < preview_->columnCount(); ++j) {
    const String& name = columns_[static_cast<std::size_t>(j)];
    switch (RoleBox(j)->currentIndex()) {
      case kUnitNames: options.Unit = name; break;
      case kInput: options.Inputs.push_back(name); break;
      case kOutput: options.Outputs.push_back(name); break;
      default: break;
    }
  }
  return options;
}

void ImportDialog::accept() {
  try {
    imported_ = ImportTable(bytes_, Options());
  } catch (const ModelFault& fault) {
    advice_->setText(InWindowsWords(FromText(fault.what())));
    return;
  }
  const TableReport& report = imported_.Report;
  ProjectSource source;
  source.File = ToText(name_);
  source.Sha256 = Sha256({bytes_.data(), bytes_.size()});
  source.Imported = ToText(QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
  source.Delimiter = String(1, report.Delimiter);
  source.Decimal = String(1, report.Numbers.Format.Decimal);
  source.Encoding = NameOf(report.Encoding);
  imported_.Project.Source = source;
  imported_.Project.Name = ToText(QFileInfo(name_).completeBaseName());
  QDialog::accept();
}

QString ImportDialog::Report() const {
  QStringList lines;
  for (const UnreadCell& cell : imported_.Report.Unread) {
    if (lines.size() == 10) {
      lines += tr("and %1 more").arg(imported_.Report.Unread.size() - 10);
      break;
    }
    lines += tr("Line %1 (%2), %3: “%4” is no number; it counts as missing.")
                 .arg(cell.Line)
                 .arg(FromText(ShownName(cell.Unit)), FromText(ShownName(cell.Column)), FromText(ShownName(cell.Text)));
  }
  for (const ColumnCount& count : imported_.Report.Texts) {
    lines +=
        tr("%1: %2 cells are no numbers and were not kept.").arg(FromText(ShownName(count.Column))).arg(count.Count);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace Tarnwise
