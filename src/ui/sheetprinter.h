// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/sheettext.h"

#include <QString>

class QPainter;
class QPagedPaintDevice;

namespace zel {

/// Paints the loading sheet on one page of `device` (a printer or a PDF):
/// the facts to fill in, the table, the verdict in large type with its word
/// and colour, the limits, the chart, and the lines to sign on.
void paintSheet(QPainter& painter, QPagedPaintDevice& device, const balance::PrintedSheet& sheet);

/// Writes the sheet as a one-page PDF on A4 or, where `letter`, US Letter;
/// why it could not be written, or nothing.
std::optional<std::string> writeSheetPdf(const balance::PrintedSheet& sheet, const QString& path,
                                         bool letter);

} // namespace zel
