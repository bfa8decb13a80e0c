#pragma once

#include <QObject>

#include <memory>

namespace BatchCli {

/// Reads lines that the user types, while the event loop goes on.
class LineReader : public QObject
{
    Q_OBJECT

public:
    explicit LineReader(QObject* parent = nullptr);
    ~LineReader() override;

    /// From now on the next line is wanted.
    void Ask();

Q_SIGNALS:
    /// The line that was asked for, without its end.
    void Line(const QString& text);

    /// There will be no line: standard input is at its end.
    void Ended();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace BatchCli
