#include "LineReader.h"

#include <QPointer>

#include <iostream>
#include <string>
#include <thread>

namespace BatchCli {

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
    // A console cannot be watched. The thread ends with its line, or with the process.
    std::thread([reader = QPointer<LineReader>(this)] {
        std::string line;
        const bool isRead = bool(std::getline(std::cin, line));
        QMetaObject::invokeMethod(reader.data(), [reader, isRead, line] {
            if (reader && isRead) {
                Q_EMIT reader->Line(QString::fromLocal8Bit(line.c_str()).trimmed());
            } else if (reader) {
                Q_EMIT reader->Ended();
            }
        });
    }).detach();
}

} // namespace BatchCli
