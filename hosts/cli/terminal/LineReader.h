// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

namespace BatchCli {

/// Reads lines that the user types without blocking the event loop.
class LineReader : public QObject
{
    Q_OBJECT

public:
    explicit LineReader(QObject* parent = nullptr);
    ~LineReader() override;

    /// Starts to read one line. Line() or Ended() follows.
    void Ask();

Q_SIGNALS:
    /// A line, without its end.
    void Line(const QString& text);

    /// Standard input is at its end.
    void Ended();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace BatchCli
