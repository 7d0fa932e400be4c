// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a window larger than its screen shows of itself.
#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>

class QScreen;
class QScrollBar;
class QWidget;

namespace sdk {

/// Moves a window no further than needed for it to be on its screen with its frame; where it is too
/// large its upper left corner is.
void keep_on_screen(QWidget& window);

/// Gives a window the size of its page, or as much of it as fits on its screen together with its
/// frame. The rest is reached by scroll bars, which do not exist while the page is seen whole. All
/// areas are in the page's coordinates and in logical pixels.
class SmallScreen : public QObject {
  Q_OBJECT

 public:
  /// Must not outlive `window`, which has its whole page in itself and places it.
  explicit SmallScreen(QWidget& window);

  /// To be called whenever the page may have another size.
  void fit(QSize page);
  /// Where the page's upper left corner stands in the window.
  QPoint origin() const;
  bool is_whole() const { return !across_ && !down_; }
  /// Scrolls no further than needed to see `area`, or its beginning if it is too large.
  void bring_into_sight(const QRect& area);
  /// Scrolls for a wheel that is turned over a part of the window which cannot scroll itself;
  /// false when the event is none of that.
  bool scrolls_for(QObject* watched, QEvent* event);

 signals:
  /// The page is to be placed anew: it was scrolled, or the screen has other room for it.
  void moved();

 protected:
  /// Sees the events of the window.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// All that the window's size follows from.
  struct Surroundings {
    QSize page;
    QRect available;
    QMargins frame;
    bool operator==(const Surroundings&) const = default;
  };

  Surroundings surroundings() const;
  bool adapt();
  void follow_screen();
  void follow_available_room();
  QSize view_of(const Surroundings& now) const;
  void show_bars(QSize view);
  void show_bar(QScrollBar*& bar, Qt::Orientation orientation, int view, int page);
  int bar_width() const;

  QWidget& window_;
  QSize page_;
  Surroundings known_;
  QScrollBar* across_ = nullptr;
  QScrollBar* down_ = nullptr;
  QMetaObject::Connection available_changed_;
};

}  // namespace sdk
