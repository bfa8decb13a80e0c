#pragma once

#include <QObject>

namespace BatchCli {

/// For as long as it lives, Ctrl-C and the system's requests to end emit a signal instead of ending the process. Only
/// one at a time.
class InterruptWatcher : public QObject
{
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject* parent = nullptr);
    ~InterruptWatcher() override;

Q_SIGNALS:
    void Interrupted();
};

} // namespace BatchCli
