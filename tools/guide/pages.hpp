// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A typeset document as pages of A4.
#pragma once

#include <QByteArray>
#include <QTextDocument>

namespace sdk {

/// A PDF document with page numbers and that title. No heading stands alone at the foot of a page,
/// and no table that fits on one is cut.
/// The same document always gives the same bytes. Throws GuideError when a line or a picture fits
/// on no page.
QByteArray pdf_of(QTextDocument& document, const QString& title);

}  // namespace sdk
