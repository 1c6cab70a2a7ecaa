#pragma once
// File › Print: the symbol on the drawing surface, with its keys, attributes and a legend of
// the marker colours, on a printer or into a PDF file, through the system's print preview.

#include <QPrinter>
#include <QWidget>

#include "app/editor.h"

namespace quorn::ui {

/// Shows the print preview of the editor's working symbol over `parent`; its Print button
/// opens the system print dialog. Without an installed printer the sheet goes to a PDF file.
void printWorkingSymbol(QWidget* parent, const Editor& editor);

/// Paints the editor's working symbol sheet on `printer`, page set up as it is. False when the
/// printer cannot be painted on.
bool paintWorkingSymbol(QPrinter& printer, const Editor& editor);

/// Sets `printer` up for a symbol sheet: A4 landscape, the whole paper given to the painter
/// (the configured margins are kept by the sheet), the document named after the symbol, and
/// PDF output into the working directory when no printer is installed.
void setUpSheetPrinter(QPrinter& printer, const Editor& editor);

}  // namespace quorn::ui
