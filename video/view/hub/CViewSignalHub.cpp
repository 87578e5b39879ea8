#include "CViewSignalHub.h"

CViewSignalHub::CViewSignalHub(QObject* parent) : QObject(parent)
{
    setObjectName(QStringLiteral("viewSignalHub"));
}
