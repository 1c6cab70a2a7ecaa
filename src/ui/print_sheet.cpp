#include "ui/print_sheet.h"

#include <QDir>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>

#include "display/symbol_sheet.h"
#include "ui/symbol_renderer.h"

namespace quorn::ui {

void setUpSheetPrinter(QPrinter& printer, const Editor& editor) {
  const QString name = QString::fromStdString(sheetDocumentName(editor.workingSymbol()));
  printer.setDocName(name);
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setFullPage(true);
  if (QPrinterInfo::availablePrinters().isEmpty()) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    const auto& directory = editor.startup().directory;
    const QDir folder =
        directory ? QDir(QString::fromStdString(directory->path().string())) : QDir::current();
    printer.setOutputFileName(
        folder.filePath(QString::fromStdString(sheetFileName(editor.workingSymbol()))));
  }
}

bool paintWorkingSymbol(QPrinter& printer, const Editor& editor) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  const Configuration& config = editor.startup().config;
  const double dotsPerInch = printer.resolution();
  const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
  const QRectF page = sheetArea(QRectF(QPointF(0, 0), paper.size()), dotsPerInch, config);
  const SymbolSheet sheet = symbolSheet(editor.workingSymbol(), editor.openFileName(), config);
  const EditorState& state = editor.state();
  const SheetSymbol shown{&editor.workingSymbol(),
                          {state.endPointPlaced, state.spindlePointPlaced},
                          editor.window().isometric ? View::Isometric : View::Orthographic};
  paintSymbolSheet(painter, page, dotsPerInch, sheet, shown, config, editor.grid());
  return painter.end();
}

void printWorkingSymbol(QWidget* parent, const Editor& editor) {
  QPrinter printer(QPrinter::HighResolution);
  setUpSheetPrinter(printer, editor);
  QPrintPreviewDialog preview(&printer, parent);
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                   [&editor](QPrinter* target) { paintWorkingSymbol(*target, editor); });
  preview.exec();
}

}  // namespace quorn::ui
