// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/printing_service.hpp"

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

}  // namespace

PageSize default_printer_page() {
  const QSizeF points = default_printer()->pageLayout().paintRect(QPageLayout::Point).size();
  return {static_cast<float>(points.width()) * twips_per_point,
          static_cast<float>(points.height()) * twips_per_point};
}

void print_on_default_printer(const Page& page) {
  const auto printer = default_printer();
  const bool painted = paint_page(*printer, page);
  if (!painted || printer->printerState() == QPrinter::Error)
    throw RuntimeError(printer->printerName().toStdString(), system_words(EIO));
}

}  // namespace sdk
