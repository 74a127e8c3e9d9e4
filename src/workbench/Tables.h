// How tables look in all pages.
#pragma once

class QTableView;

namespace Tarnwise {

// Rows of one line, all equally high: so a hundred thousand of them scroll at once.
void SetCompactRows(QTableView& table);

}  // namespace Tarnwise
