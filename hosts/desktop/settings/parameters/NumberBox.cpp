// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NumberBox.h"

namespace BatchDesktop {

NumberBox::NumberBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    setLocale(plain);
    // Half a number is no value: "1600" is not 1, 16 and 160 before.
    setKeyboardTracking(false);
}

QString NumberBox::textFromValue(double value) const
{
    QString text = QString::number(value, 'f', decimals());
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0'))) {
            text.chop(1);
        }
        if (text.endsWith(QLatin1Char('.'))) {
            text.chop(1);
        }
    }
    return text;
}

} // namespace BatchDesktop
