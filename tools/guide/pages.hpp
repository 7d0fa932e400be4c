// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A typeset document as pages of A4.
#pragma once

#include <QByteArray>
#include <QTextDocument>

namespace sdk {

/// Begins a new page where a heading would stand alone at the foot of one, or where a table that
/// fits on one would be cut. The document has a page size.
void break_pages(const QTextDocument& document);

/// A PDF document with that title, its pages broken as above and numbered. Throws GuideError when a
/// line or a picture fits on no page. The document is of no other use afterwards.
QByteArray pdf_of(QTextDocument& document, const QString& title);

/// Puts a date, in seconds since the beginning of 1970, in place of that of the making, which Qt
/// notes in local time; its zone stays. Throws GuideError when the document has no date.
void set_creation_date(QByteArray& pdf, qint64 seconds);

}  // namespace sdk
