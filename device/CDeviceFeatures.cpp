#include "CDeviceFeatures.h"

#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

using namespace Vorlen::GenICam;
using Vorlen::Infra::CString;

QByteArray CDeviceFeatures::errorText()
{
    return GetErrorDesc().toLocal8Bit();
}

void CDeviceFeatures::logFailure(const char* verb, const char* name, const QByteArray& valueText)
{
    if (valueText.isNull())
        LOG_ERROR("%s %s value fail. [%s]", verb, name, errorText().constData());
    else
        LOG_ERROR("%s %s value %s fail. [%s]", verb, name, valueText.constData(), errorText().constData());
}

bool CDeviceFeatures::readString(const ICameraPtr& camera, const char* name, QString& value, int& maxLength)
{
    CString text;
    unsigned int length = 0;
    bool lengthRead = false;
    if (!call<CStringNode>(camera, name, "get", [&](CStringNode& n) {
            if (!n.getValue(text))
                return false;
            lengthRead = n.getMaxStringLen(length);
            return true;
        }))
        return false;
    value = QString::fromLocal8Bit(text.c_str());
    if (lengthRead)
        maxLength = static_cast<int>(length);
    else
        LOG_ERROR("get %s max length fail. [%s]", name, errorText().constData());
    return true;
}

bool CDeviceFeatures::readEnumSymbols(const ICameraPtr& camera, const char* name, QStringList& symbols)
{
    Vorlen::Infra::TVector<CString> list;
    if (!call<CEnumNode>(camera, name, "get", [&](CEnumNode& n) { return n.getEnumSymbolList(list); }))
        return false;
    symbols.clear();
    for (const CString& symbol : list)
        symbols.append(QString::fromLocal8Bit(symbol.c_str()));
    return true;
}

bool CDeviceFeatures::isCompressionModeJpeg(const ICameraPtr& camera)
{
    CEnumNode node(camera, "ImageCompressionMode");
    if (!node.isValid())
    {
        LOG_ERROR("get ImageCompressionMode node fail");
        return false;
    }
    if (!node.isReadable())
    {
        LOG_ERROR("ImageCompressionMode is not readable");
        return false;
    }
    Vorlen::Infra::TVector<CInternalParameterNode::SEnumEntry> entries;
    if (!node.getEnumEntry(entries))
    {
        LOG_ERROR("getEnumEntry ImageCompressionMode fail");
        return false;
    }
    unsigned long value = 0;
    if (!node.getEnumValue(value))
    {
        LOG_ERROR("getEnumValue ImageCompressionMode fail");
        return false;
    }
    for (const auto& entry : entries)
    {
        if (entry.value == value)
            return entry.symbol == CString("JPEG");
    }
    return false;
}

bool CDeviceFeatures::loadFactoryUserSet(const ICameraPtr& camera)
{
    for (const char* name : {"UserSetSelector", "UserSetDefault"})
    {
        CEnumNode node(camera, name);
        if (node.isValid() && node.isWriteable() && !node.setValueBySymbol("Default"))
            logFailure("set", name, "Default");
    }
    CCmdNode load(camera, "UserSetLoad");
    if (load.execute())
        return true;
    LOG_ERROR("execute UserSetLoad fail. [%s]", errorText().constData());
    return false;
}

CString CDeviceFeatures::readUserId(const ICameraPtr& camera)
{
    CString userId;
    CStringNode node(camera, "DeviceUserID");
    if (node.isValid() && node.isReadable() && !node.getValue(userId))
    {
        logFailure("get", "DeviceUserID", QByteArray());
        userId = CString();
    }
    return userId;
}
