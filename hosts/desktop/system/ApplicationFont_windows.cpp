// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ApplicationFont.h"

#include <QApplication>
#include <QFont>

namespace BatchDesktop {

// Qt 5 takes the font of dialogs of Windows 95, and knows the one that the user has chosen for messages.
void UseFontOfSystem()
{
    QApplication::setFont(QApplication::font("QMessageBox"));
}

} // namespace BatchDesktop
