#pragma once

#include <QProcess>

namespace BatchProtocol {

/// A process that does not outlive this one: where the system can do that, it ends the one with the other.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject* parent = nullptr);

protected:
    void setupChildProcess() override;
};

} // namespace BatchProtocol
