#pragma once
// Free functions shared by every part of the application: SDK error text,
// conversions of integer feature values, feature visibility and enumerator
// texts. Includes the address helpers, the log sinks and the style-sheet
// loader so one include brings them all.
#include <QString>

#include "AddressUtils.h"
#include "LogSinks.h"
#include "StyleSheet.h"
#include "Vorlen/GenICam/CInternalParameterNode.h"

// Text of the calling thread's last camera-library error.
QString GetErrorDesc();

// represent: GenICam integer representation; 5 (IPv4 address) and 6 (MAC
// address) are converted, anything else gives an empty string.
QString convertIntToQString(long value, int represent);
// Inverse of convertIntToQString. ok is set to false on a bad text and left
// untouched otherwise (and for other representations, which return 0).
long convertQStringToInt(QString text, int represent, bool& ok);

// Whether a feature shows at the user level (0 beginner, 1 expert, 2 guru).
bool isGenParamVisible(const Vorlen::GenICam::CInternalParameterNode* node, unsigned int level);
// The rule behind it: both at most 2 and visibility <= level.
bool isVisibilityShown(unsigned int visibility, unsigned int level);

const char* GenStrNamespace(Vorlen::GenICam::CInternalParameterNode::ENameSpace nameSpace);
const char* GenStrVisibility(Vorlen::GenICam::CInternalParameterNode::EVisibility visibility);
const char* GenStrBool(bool value);
