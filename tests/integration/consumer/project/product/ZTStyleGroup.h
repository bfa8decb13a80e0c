#pragma once

#include <QObject>

class ZTStyleGroup : public QObject
{
};
