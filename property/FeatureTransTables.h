#pragma once
// The translation tables of feature names, display names, descriptions and
// enumeration values (filled by the property panel). Read on the GUI thread
// only: the panel refills them there when the language changes.
#if __has_include("ParamTransTables.h")
#include "ParamTransTables.h"
#else
// The tables' own header has not been written yet: the same declarations,
// defined in FeatureTransTablesFallback.cpp.
#include <QMap>
#include <QString>
extern QMap<QString, QString> g_mapNameToTrans;
extern QMap<QString, QString> g_mapNameToDispTrans;
extern QMap<QString, QString> g_mapNameToDespTrans;
extern QMap<QString, QMap<QString, QString>> g_mapNameToValueTransMap;
void fillParamTransTables();
void clearParamTransTables();
#endif
