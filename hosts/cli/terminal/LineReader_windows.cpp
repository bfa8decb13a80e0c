// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LineReader.h"

#include <QPointer>

#include <array>
#include <qt_windows.h>
#include <thread>

namespace BatchCli {

namespace {

enum class Outcome { Line, End, Interrupt };

Outcome ReadLine(QString& line)
{
    std::array<wchar_t, 1024> text{};
    DWORD count = 0;
    SetLastError(ERROR_SUCCESS);
    if (!ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), text.data(), DWORD(text.size()), &count, nullptr)) {
        return Outcome::End;
    }
    if (count == 0) {
        return GetLastError() == ERROR_OPERATION_ABORTED ? Outcome::Interrupt : Outcome::End;
    }
    constexpr wchar_t controlZ = 0x1A; // Ctrl-Z ends the input on Windows.
    if (text[0] == controlZ) {
        return Outcome::End;
    }
    line = QString::fromWCharArray(text.data(), int(count)).trimmed();
    return Outcome::Line;
}

} // namespace

class LineReader::Private
{
};

LineReader::LineReader(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

LineReader::~LineReader() = default;

void LineReader::Ask()
{
    // A console cannot be watched by an event loop. The thread ends with its line or with the process.
    std::thread([reader = QPointer<LineReader>(this)] {
        QString line;
        const Outcome outcome = ReadLine(line);
        if (outcome == Outcome::Interrupt) {
            return; // InterruptWatcher reports it.
        }
        QMetaObject::invokeMethod(reader.data(), [reader, outcome, line] {
            if (reader && outcome == Outcome::Line) {
                Q_EMIT reader->Line(line);
            } else if (reader) {
                Q_EMIT reader->Ended();
            }
        });
    }).detach();
}

} // namespace BatchCli
