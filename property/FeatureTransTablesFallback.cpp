// Empty tables, linked only while the real tables are not part of the tree:
// every feature then keeps the camera's own texts.
#include "FeatureTransTables.h"

QMap<QString, QString> g_mapNameToTrans;
QMap<QString, QString> g_mapNameToDispTrans;
QMap<QString, QString> g_mapNameToDespTrans;
QMap<QString, QMap<QString, QString>> g_mapNameToValueTransMap;

void fillParamTransTables() {}

void clearParamTransTables()
{
    g_mapNameToTrans.clear();
    g_mapNameToDispTrans.clear();
    g_mapNameToDespTrans.clear();
    g_mapNameToValueTransMap.clear();
}
