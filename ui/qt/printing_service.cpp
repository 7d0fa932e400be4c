// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/printing_service.hpp"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <cerrno>
#include <memory>
#include <system_error>

#include "screen/errors.hpp"
#include "ui/qt/page_painter.hpp"

namespace sdk {

namespace {

constexpr float twips_per_point = 20;

std::string system_words(int error) { return std::generic_category().message(error); }

std::unique_ptr<QPrinter> default_printer() {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) throw RuntimeError("printer", system_words(ENODEV));
  auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
  printer->setPageOrientation(QPageLayout::Portrait);
  printer->setCopyCount(1);
  return printer;
}

PageSize printable_area(const QPagedPaintDevice& device) {
  const QSizeF points = device.pageLayout().paintRect(QPageLayout::Point).size();
  return {static_cast<float>(points.width()) * twips_per_point,
          static_cast<float>(points.height()) * twips_per_point};
}

}  // namespace

bool has_default_printer() { return !QPrinterInfo::defaultPrinter().isNull(); }

PageSize default_printer_page() { return printable_area(*default_printer()); }

void print_on_default_printer(const Page& page) {
  const auto printer = default_printer();
  const bool painted = paint_page(*printer, page);
  if (!painted || printer->printerState() == QPrinter::Error)
    throw RuntimeError(printer->printerName().toStdString(), system_words(EIO));
}

namespace {

/// A4 in portrait, with Qt's margins.
void set_paper(QPdfWriter& writer) { writer.setPageSize(QPageSize(QPageSize::A4)); }

}  // namespace

PageSize pdf_page() {
  QBuffer nothing;
  QPdfWriter writer(&nothing);
  set_paper(writer);
  return printable_area(writer);
}

std::string pdf_of(const Page& page) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&file);
    set_paper(writer);
    if (!paint_page(writer, page)) throw RuntimeError("PDF", system_words(EIO));
  }
  return file.data().toStdString();
}

}  // namespace sdk
