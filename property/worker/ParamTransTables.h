#pragma once
// Global tables that translate GenICam feature names, display names, descriptions and
// enumeration values into the user's language. All are keyed by the feature name; a lookup
// that misses keeps the camera's own text.
//
// The English texts are built in; the translations come from the Qt translator installed for
// the chosen language (context "CPropertyForm"), so the tables are filled again after every
// language switch. Fill and clear them on the GUI thread while no feature tree is being built.
#include <QMap>
#include <QString>

// Feature name -> translated feature name (also used for selector names in tooltips).
extern QMap<QString, QString> g_mapNameToTrans;
// Feature name -> translated display name.
extern QMap<QString, QString> g_mapNameToDispTrans;
// Feature name -> translated description.
extern QMap<QString, QString> g_mapNameToDespTrans;
// Feature name -> (enumeration symbol -> translated symbol). The key "Any" holds the value
// texts shared by all features, such as "{Command}", "On" and "True".
extern QMap<QString, QMap<QString, QString>> g_mapNameToValueTransMap;

// Clears the four tables and fills them again through the installed translator.
void fillParamTransTables();
// Empties the four tables.
void clearParamTransTables();
