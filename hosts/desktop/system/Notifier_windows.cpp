// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Notifier.h"

namespace BatchDesktop {

class Notifier::Link
{
};

// A program without an entry in the start menu can show none; the flashing button in the taskbar has to do.
Notifier::Notifier(QObject* parent)
    : QObject(parent)
    , link(nullptr)
{
}

Notifier::~Notifier() = default;

void Notifier::Show(const Notice&) {}

void Notifier::Withdraw() {}

} // namespace BatchDesktop
