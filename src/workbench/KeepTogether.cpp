#include "workbench/KeepTogether.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <cmath>

namespace Tarnwise {

namespace {

const QTextTable* TableAt(const QTextBlock& block) { return QTextCursor(block).currentTable(); }

// A paragraph that is bold as a whole stands above a table.
bool IsCaption(const QTextBlock& block) {
  if (block.text().isEmpty() || TableAt(block) != nullptr) return false;
  return block.begin().fragment().charFormat().fontWeight() >= QFont::Bold && TableAt(block.next()) != nullptr;
}

bool IsHeading(const QTextBlock& block) { return block.blockFormat().headingLevel() > 0 || IsCaption(block); }

int PageOf(const QTextDocument& document, double y) {
  return static_cast<int>(std::floor(y / document.pageSize().height()));
}

// Where the last line begins of what has to stand below a heading.
double EndOfFirstOf(const QTextDocument& document, QTextBlock block) {
  const QTextTable* const table = TableAt(block);
  const bool hasNumbers = table != nullptr && table->rows() > 1;
  if (hasNumbers) block = table->cellAt(1, 0).firstCursorPosition().block();
  const QRectF place = document.documentLayout()->blockBoundingRect(block);
  return hasNumbers ? place.bottom() - 1.0 : place.top();
}

// The first heading, from this one on, of a run that stands on another page than what comes below it.
QTextBlock FirstLeftAlone(const QTextDocument& document, QTextBlock from) {
  for (QTextBlock block = from; block.isValid(); block = block.next()) {
    if (!IsHeading(block)) continue;
    const QTextBlock first = block;
    while (block.isValid() && IsHeading(block)) block = block.next();
    if (!block.isValid()) return {};
    const double top = document.documentLayout()->blockBoundingRect(first).top();
    const bool begins = first.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
    if (!begins && PageOf(document, top) != PageOf(document, EndOfFirstOf(document, block))) return first;
  }
  return {};
}

}  // namespace

void KeepHeadingsWithWhatFollows(QTextDocument& document) {
  QTextBlock alone = FirstLeftAlone(document, document.begin());
  while (alone.isValid()) {
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(alone).mergeBlockFormat(format);
    alone = FirstLeftAlone(document, alone.next());
  }
}

}  // namespace Tarnwise
