// A table on its way into a project: what was understood of it, a preview, and a role for each column. What the file
// leaves open is asked here.
#pragma once

#include "project/ImportTable.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QTableWidget;

namespace Tarnwise {

class ImportDialog : public QDialog {
  Q_OBJECT

 public:
  // `name` is that of the file, or what else the bytes come from.
  ImportDialog(std::vector<char> bytes, QString name, QWidget* parent);

  // After it was accepted. The project has its name and source.
  const ImportedTable& Imported() const { return imported_; }
  // What a person should know of it, a sentence a line; empty where all was read.
  QString Report() const;

  void accept() override;

 private:
  QComboBox* AddChoice(const char* objectName, const QString& label, const QStringList& choices);
  CsvOptions Csv() const;
  NumberOptions Numbers() const;
  TableOptions Options() const;
  void ReadAgain();
  void Show(const CsvTable& table);
  void ShowRoles(const CsvTable& table);
  void Tell(const QString& text, bool isFault);
  void CheckRoles();
  QComboBox* RoleBox(int column) const;

  std::vector<char> bytes_;
  QString name_;
  ImportedTable imported_;
  std::vector<String> columns_;
  QComboBox* delimiter_ = nullptr;
  QComboBox* decimal_ = nullptr;
  QComboBox* thousands_ = nullptr;
  QComboBox* encoding_ = nullptr;
  QComboBox* header_ = nullptr;
  QLabel* understood_ = nullptr;
  QLabel* advice_ = nullptr;
  QTableWidget* preview_ = nullptr;
  QDialogButtonBox* buttons_ = nullptr;
};

}  // namespace Tarnwise
