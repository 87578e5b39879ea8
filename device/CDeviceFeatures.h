#pragma once
// Camera features by name, through the camera library's typed nodes: one
// helper builds the node, runs the operation and logs a failure with the
// library's error text, so that each feature wrapper of the device is one
// line. Any thread; every call is a round trip to the camera.
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "Vorlen/GenICam.h"

class CDeviceFeatures
{
public:
    // Builds TNode(camera, name) and returns op(node). A failure logs
    // "<verb> <name> value fail. [<error>]", with the value written when
    // valueText is given ("<verb> <name> value <valueText> fail. ...").
    template <class TNode, class Op>
    static bool call(const Vorlen::GenICam::ICameraPtr& camera, const char* name, const char* verb, Op op,
                     const QByteArray& valueText = QByteArray())
    {
        TNode node(camera, name);
        if (op(node))
            return true;
        logFailure(verb, name, valueText);
        return false;
    }

    // A string feature and its longest length (left as it is when that
    // cannot be read, which is logged).
    static bool readString(const Vorlen::GenICam::ICameraPtr& camera, const char* name, QString& value,
                           int& maxLength);
    // The symbols of an enumeration's entries that are available now.
    static bool readEnumSymbols(const Vorlen::GenICam::ICameraPtr& camera, const char* name, QStringList& symbols);
    // The enumeration "ImageCompressionMode" reads "JPEG"; an unreadable
    // node is logged and counts as not JPEG.
    static bool isCompressionModeJpeg(const Vorlen::GenICam::ICameraPtr& camera);
    // Selects the factory user set (where writeable), makes it the default
    // and loads it.
    static bool loadFactoryUserSet(const Vorlen::GenICam::ICameraPtr& camera);
    // "DeviceUserID", empty when the camera has none or it cannot be read.
    static Vorlen::Infra::CString readUserId(const Vorlen::GenICam::ICameraPtr& camera);
    // The library's last error, for log lines.
    static QByteArray errorText();

private:
    static void logFailure(const char* verb, const char* name, const QByteArray& valueText);
};
