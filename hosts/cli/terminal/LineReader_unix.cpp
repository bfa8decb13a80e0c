// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LineReader.h"

#include <QSocketNotifier>

#include <unistd.h>

namespace BatchCli {

class LineReader::Private
{
public:
    std::unique_ptr<QSocketNotifier> notifier;
};

LineReader::LineReader(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

LineReader::~LineReader() = default;

void LineReader::Ask()
{
    // In its line mode a terminal gives one whole line for each read.
    d->notifier = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    connect(d->notifier.get(), &QSocketNotifier::activated, this, [this] {
        char bytes[1024];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        d->notifier->setEnabled(false);
        if (count > 0) {
            Q_EMIT Line(QString::fromUtf8(bytes, int(count)).trimmed());
        } else {
            Q_EMIT Ended();
        }
    });
}

} // namespace BatchCli
