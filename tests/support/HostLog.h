#pragma once

#include "ZTBatchManager.h"

#include <QObject>
#include <QStringList>

/// What the manager and its sessions say to a host, in order, one line for each emission.
class HostLog : public QObject
{
    Q_OBJECT

public:
    void Watch(ZTBatchManager* manager);
    void Watch(ZTBatchManager::ZTBatchSession* session);

    int Count(const QString& line) const { return lines.count(line); }

    QStringList lines;
    int connections = 0; ///< how often ConnectionEstablished() came

private:
    void Note(const QString& line) { lines.append(line); }
};
