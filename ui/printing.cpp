// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/printing.hpp"

#include "screen/digit_frames.hpp"
#include "ui/main_window.hpp"

namespace sdk {

std::vector<LineDrawing> box_lines(const Rectangle& grid, int width) {
  const auto& [l, t, w, h] = grid;
  return {{width, l, t + h / 3, l + w, t + h / 3},
          {width, l, t + 2 * h / 3, l + w, t + 2 * h / 3},
          {width, l + w / 3, t, l + w / 3, t + h},
          {width, l + 2 * w / 3, t, l + 2 * w / 3, t + h}};
}

namespace {

constexpr int page_line_width = 15;

/// The box lines and the frame of the grid, drawn around without lifting the pen.
std::vector<LineDrawing> page_lines(const Rectangle& grid) {
  auto lines = box_lines(grid, page_line_width);
  auto& [width, x1, y1, x2, y2] = lines.back();
  std::swap(y1, y2);
  const float left = grid.left, top = grid.top;
  const float right = left + grid.width, bottom = top + grid.height;
  lines.push_back({page_line_width, left, top, right, top});
  lines.push_back({page_line_width, right, top, right, bottom});
  lines.push_back({page_line_width, right, bottom, left, bottom});
  lines.push_back({page_line_width, left, bottom, left, top});
  return lines;
}

}  // namespace

Page printed_page(PageSize paper, const Layout& layout, const DisplayGrid& puzzle,
                  const std::string& title, const std::string& credit) {
  const float width = layout.MSF.width, height = layout.MSF.height;
  const float left =
      paper.width > layout.window.width ? (paper.width - layout.window.width) / 2 : 1000;
  const float top = (paper.height - layout.window.height) / 2;
  Page page{TextDrawing{left, top - 600, "Arial", 14, title},
            PictureDrawing{left, top, width, height, as_seen(puzzle)}};
  for (const LineDrawing& line : page_lines({left - 10, top - 10, width, height}))
    page.emplace_back(line);
  page.push_back(TextDrawing{left, top + height + 100, "Arial", 8, credit});
  return page;
}

void MainWindow::trace_ligne() {
  constexpr int pen_width = 3;
  lines_ = box_lines(layout_.MSF, pen_width);
  if (MSR.visible()) {
    const auto more = box_lines(layout_.MSR, pen_width);
    lines_.insert(lines_.end(), more.begin(), more.end());
  }
  if (listener_) listener_->lines_drawn();
}

void MainWindow::redraw_lines() { trace_ligne(); }

void MainWindow::print() {
  const PageSize paper = desktop().printer_page();
  desktop().print(
      printed_page(paper, layout_, MSF, globals.TitreFenetre, text_of(Message::credit)));
  refresh();
  trace_ligne();
}

}  // namespace sdk
