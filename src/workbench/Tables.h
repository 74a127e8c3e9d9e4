// How tables look in all pages.
#pragma once

class QTableView;

namespace Tarnwise {

// Rows of one line, all equally high: so a hundred thousand of them scroll at once.
void SetCompactRows(QTableView& table);

// What is typed into a cell is called after its column and row.
void NameEditors(QTableView& table);

}  // namespace Tarnwise
