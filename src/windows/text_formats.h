// Formats of a report as those of a Qt text, and back to the twip.
#pragma once

#include <QTextBlock>
#include <QTextFormat>

#include "report/formati.h"

namespace trelvo {

QTextCharFormat qt_format(const formatocarattere& format);
formatocarattere report_format(const QTextCharFormat& format);

// Without its bullet, which is a list of the text.
QTextBlockFormat qt_format(const formatoparagrafo& format, double dots_per_inch);
formatoparagrafo report_format(const QTextBlock& block);

}  // namespace trelvo
