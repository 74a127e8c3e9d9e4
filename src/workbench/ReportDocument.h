// A report as rich text with its charts, to look at and as pages of a PDF file.
#pragma once

#include "project/Report.h"

class QTextDocument;

namespace Tarnwise {

// Replaces what stands in the document, which is black on white.
void FillReport(const Report& report, QTextDocument& document);

// The bytes of the file: pages of A4 with numbers, no heading as the last of its page. Fonts want an application; it
// needs no screen. A ModelFault where it can't be drawn.
String ReportPdf(const Report& report);

}  // namespace Tarnwise
