// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ConsoleProcess.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <qt_windows.h>
#include <vector>

namespace {

constexpr int patience = 60'000; // ms

HANDLE Open(const wchar_t* name)
{
    return CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                       0, nullptr);
}

CONSOLE_SCREEN_BUFFER_INFO InfoOf(HANDLE output)
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(output, &info)) {
        qFatal("The console has no screen.");
    }
    return info;
}

QString CommandLine(const QString& program, const QStringList& arguments)
{
    QString line = QLatin1Char('"') + QDir::toNativeSeparators(program) + QLatin1Char('"');
    for (const QString& argument : arguments) {
        line += QStringLiteral(" \"%1\"").arg(argument);
    }
    return line;
}

} // namespace

ConsoleProcess::ConsoleProcess(const QString& program, const QStringList& arguments, const QString& folder)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    SetConsoleCtrlHandler(nullptr, FALSE); // Otherwise the process would inherit it.
    std::wstring line = CommandLine(program, arguments).toStdWString();
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        QDir::toNativeSeparators(folder).toStdWString().c_str(), &startup, &started)) {
        qFatal("%s cannot be started", qUtf8Printable(program));
    }
    CloseHandle(started.hThread);
    process = started.hProcess;
    FreeConsole();
    // The console exists a moment after the process.
    if (!QTest::qWaitFor([&] { return AttachConsole(started.dwProcessId) != FALSE; }, patience)) {
        qFatal("The process has no console.");
    }
    SetConsoleCtrlHandler(nullptr, TRUE); // Typed interrupts are for the process, not for the test.
    output = Open(L"CONOUT$");
    input = Open(L"CONIN$");
}

ConsoleProcess::~ConsoleProcess()
{
    TerminateProcess(process, 1);
    WaitForSingleObject(process, patience);
    for (HANDLE handle : {process, output, input}) {
        CloseHandle(handle);
    }
    FreeConsole();
}

QString ConsoleProcess::Screen() const
{
    const COORD size = InfoOf(output).dwSize;
    std::vector<wchar_t> text(std::size_t(size.X) * std::size_t(size.Y));
    DWORD count = 0;
    ReadConsoleOutputCharacterW(output, text.data(), DWORD(text.size()), {0, 0}, &count);
    return QString::fromWCharArray(text.data(), int(count));
}

QStringList ConsoleProcess::Rows() const
{
    static const QRegularExpression sequence(QStringLiteral("\\x1B\\[[0-9;]*[A-Za-z]"));
    const int width = InfoOf(output).dwSize.X;
    const QString screen = Screen();
    QStringList rows;
    for (int start = 0; start < screen.size(); start += width) {
        const QString row = screen.mid(start, width).remove(sequence).trimmed();
        if (!row.isEmpty()) {
            rows.append(row);
        }
    }
    return rows;
}

bool ConsoleProcess::WaitFor(const QString& text, int count) const
{
    return QTest::qWaitFor([&] { return Screen().count(text) >= count; }, patience);
}

bool ConsoleProcess::HasColour(const QString& text, int colour) const
{
    const QString screen = Screen();
    if (screen.contains(QStringLiteral("\x1B[%1m%2").arg(colour).arg(text))) {
        return true;
    }
    // The bits for red, green and blue, in the order of terminals.
    const int wanted = colour - 30;
    const WORD attributes = WORD(((wanted & 1) ? FOREGROUND_RED : 0) | ((wanted & 2) ? FOREGROUND_GREEN : 0) |
                                 ((wanted & 4) ? FOREGROUND_BLUE : 0));
    constexpr WORD mask = FOREGROUND_RED | FOREGROUND_GREEN | FOREGROUND_BLUE;
    const int at = screen.indexOf(text);
    const int width = InfoOf(output).dwSize.X;
    WORD found = 0;
    DWORD count = 0;
    return at >= 0 &&
           ReadConsoleOutputAttribute(output, &found, 1, {SHORT(at % width), SHORT(at / width)}, &count) != FALSE &&
           count == 1 && (found & mask) == attributes;
}

bool ConsoleProcess::InterpretsSequences() const
{
    DWORD mode = 0;
    return GetConsoleMode(output, &mode) && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

void ConsoleProcess::Type(const QString& line)
{
    std::vector<INPUT_RECORD> records;
    for (const QChar key : line + QLatin1Char('\r')) {
        INPUT_RECORD record{};
        record.EventType = KEY_EVENT;
        record.Event.KeyEvent.wRepeatCount = 1;
        record.Event.KeyEvent.uChar.UnicodeChar = WCHAR(key.unicode());
        record.Event.KeyEvent.wVirtualKeyCode = key == QLatin1Char('\r') ? WORD(VK_RETURN) : WORD(0);
        for (const BOOL isDown : {TRUE, FALSE}) {
            record.Event.KeyEvent.bKeyDown = isDown;
            records.push_back(record);
        }
    }
    DWORD count = 0;
    if (!WriteConsoleInputW(input, records.data(), DWORD(records.size()), &count) || count != records.size()) {
        qFatal("The console takes no keys.");
    }
}

void ConsoleProcess::PressCtrlC()
{
    GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
}

int ConsoleProcess::ExitCode() const
{
    DWORD code = 0;
    const bool hasEnded =
        QTest::qWaitFor([this] { return WaitForSingleObject(process, 0) == WAIT_OBJECT_0; }, patience);
    return hasEnded && GetExitCodeProcess(process, &code) ? int(code) : -1;
}
