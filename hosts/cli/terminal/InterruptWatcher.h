#pragma once

#include <QObject>

namespace BatchCli {

/// Tells of the user's wish to end the program, Ctrl-C or a request of the system, instead of ending it. One at a time.
class InterruptWatcher : public QObject
{
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject* parent = nullptr);
    ~InterruptWatcher() override;

    /// From now on the next interrupt ends the process where it stands: nothing else would answer it.
    static void EndAtNext();

Q_SIGNALS:
    void Interrupted();
};

} // namespace BatchCli
