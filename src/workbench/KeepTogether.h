// Pages that end where a reader would end them.
#pragma once

class QTextDocument;

namespace Tarnwise {

// In a document with a page size: a heading, or a table's caption, that is the last on its page goes to the next one
// with what it stands above, of a table its first row of numbers too.
void KeepHeadingsWithWhatFollows(QTextDocument& document);

}  // namespace Tarnwise
