#include "backends/qt/windows/PrintDialog.h"

#include <QGuiApplication>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QTimer>
#include <algorithm>

#include "backends/qt/printing/PrintedNote.h"
#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/FrenchTexts.h"
#include "base/Twips.h"

namespace lumenote {

namespace {

/// As long as it lives, shows the windows that a dialog opens in French, too, and what it changes
/// when it is used.
class FrenchWindows : public QObject {
 public:
  explicit FrenchWindows(QWidget& dialog) : dialog_(&dialog) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || !dialog_ || !Belongs(*widget)) return false;
    if (event->type() == QEvent::Show && widget->isWindow()) ShowInFrench(*widget);
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease)
      QTimer::singleShot(0, dialog_, [dialog = dialog_] { ShowInFrench(*dialog); });
    return false;
  }

 private:
  bool Belongs(const QWidget& widget) const {
    const QWidget* window = widget.window();
    while (window && window != dialog_)
      window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window != nullptr;
  }

  QPointer<QWidget> dialog_;
};

class BusyPointer {
 public:
  BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
};

/// The paper in the printer, with the note's margins.
Paper PaperIn(const QPrinter& printer, Paper paper) {
  const QSizeF points = printer.pageLayout().fullRectPoints().size();
  paper.width = qRound(points.width() * kTwipsPerPoint);
  paper.height = qRound(points.height() * kTwipsPerPoint);
  paper.MakeRoom();
  return paper;
}

bool IsWanted(const QPrinter& printer, int page) {
  if (printer.printRange() != QPrinter::PageRange) return true;
  if (!printer.pageRanges().isEmpty()) return printer.pageRanges().contains(page);
  return page >= printer.fromPage() && page <= printer.toPage();
}

/// Those that the user wants, from 0, in the order of printing.
std::vector<int> PagesOf(const QPrinter& printer, int count) {
  std::vector<int> pages;
  for (int page = 0; page < count; ++page)
    if (IsWanted(printer, page + 1)) pages.push_back(page);
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(pages);
  const std::vector<int> once = pages;
  const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
  for (int copy = 1; copy < copies; ++copy) pages.insert(pages.end(), once.begin(), once.end());
  return pages;
}

bool WritePdf(const QPrinter& printer, PrintedNote& note, const std::vector<int>& pages) {
  QSaveFile file(printer.outputFileName());
  if (!file.open(QIODevice::WriteOnly)) return false;
  {
    QPdfWriter writer(&file);
    writer.setResolution(kPrintedDots);
    writer.setTitle(printer.docName());
    writer.setPageLayout(printer.pageLayout());
    if (!PrintPages(writer, note, pages)) return false;
  }
  return file.commit();
}

bool Print(QPrinter& printer, const DocumentSurface& surface) {
  const BusyPointer busy;
  const Document& document = surface.Content();
  const bool part = printer.printRange() == QPrinter::Selection;
  const Selection range = part ? surface.Selected() : Selection{0, document.Length()};
  PrintedNote note(document, range, PaperIn(printer, PaperOf(document)), kPrintedDots);
  const std::vector<int> pages = PagesOf(printer, note.PageCount());
  if (pages.empty()) return true;
  if (printer.outputFormat() == QPrinter::PdfFormat) return WritePdf(printer, note, pages);
  printer.setResolution(kPrintedDots);
  return PrintPages(printer, note, pages) && printer.printerState() != QPrinter::Error;
}

}  // namespace

bool PrintByDialog(const DocumentSurface& surface, const QString& title, QWidget* over) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setPageLayout(LayoutOf(PaperOf(surface.Content())));
  printer.setFullPage(true);
  const QPointer<QPrintDialog> dialog = new QPrintDialog(&printer, over);
  dialog->setOption(QAbstractPrintDialog::PrintSelection, surface.Selected().Length() > 0);
  dialog->setWindowTitle(QStringLiteral("Imprimer"));
  dialog->setFont(ControlFont());
  const FrenchWindows french(*dialog);
  const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
  delete dialog;
  return !accepted || Print(printer, surface);
}

}  // namespace lumenote
