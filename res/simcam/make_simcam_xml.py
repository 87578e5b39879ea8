#!/usr/bin/env python3
"""Writes LumidorSimCam.xml, the GenICam description of our simulated camera.

The camera is Aravis' fake GigE Vision camera: the registers it interprets
itself (image size, pixel format, exposure, gain, acquisition, triggers) and
the GigE Vision bootstrap registers keep their addresses; every other feature
is plain memory of the fake camera (64 KiB), placed at free offsets:

  0x1000..0x1fff  device, image and analog features backed by memory
  0x2000..0x2fff  user sets, events
  0x4000..0x41ff  test features
  0x5000..        generated filler features (nested categories)

Run it after changing this file:  python3 make_simcam_xml.py > LumidorSimCam.xml
"""
import sys
from xml.sax.saxutils import escape

out = []


def emit(s):
    out.append(s)


def common(name, display=None, desc=None, vis="Beginner", ns=None, tooltip=None):
    s = ""
    if tooltip is None:
        tooltip = desc
    if tooltip:
        s += "  <ToolTip>%s</ToolTip>\n" % escape(tooltip)
    if desc:
        s += "  <Description>%s</Description>\n" % escape(desc)
    s += "  <DisplayName>%s</DisplayName>\n" % escape(display or split_words(name))
    s += "  <Visibility>%s</Visibility>\n" % vis
    return s


def split_words(name):
    words = ""
    for i, c in enumerate(name):
        if i and c.isupper() and (not name[i - 1].isupper() or (i + 1 < len(name) and name[i + 1].islower())):
            words += " "
        words += c
    return words


def ns_attr(ns):
    return ' NameSpace="%s"' % ns


def category(name, features, desc=None, vis="Beginner", ns="Standard"):
    emit('<Category Name="%s"%s>\n' % (name, ns_attr(ns)))
    emit(common(name, desc=desc or ("Features of %s." % split_words(name).lower()), vis=vis))
    for f in features:
        emit("  <pFeature>%s</pFeature>\n" % f)
    emit("</Category>\n")


def extra(pis_available=None, pis_locked=None, selected=None, streamable=False):
    s = ""
    if pis_available:
        s += "  <pIsAvailable>%s</pIsAvailable>\n" % pis_available
    if pis_locked:
        s += "  <pIsLocked>%s</pIsLocked>\n" % pis_locked
    for sel in selected or []:
        s += "  <pSelected>%s</pSelected>\n" % sel
    if streamable:
        s += "  <Streamable>Yes</Streamable>\n"
    return s


def feature_head(tag, name, desc, vis, ns, access=None, **kw):
    """Opening tag, names, visibility and the extra links of a feature node."""
    emit('<%s Name="%s"%s>\n' % (tag, name, ns_attr(ns)))
    emit(common(name, desc=desc, vis=vis))
    emit(extra(**kw))
    if access:
        emit("  <ImposedAccessMode>%s</ImposedAccessMode>\n" % access)


def value_or_pvalue(pvalue, value_text):
    if pvalue:
        emit("  <pValue>%s</pValue>\n" % pvalue)
    else:
        emit("  <Value>%s</Value>\n" % value_text)


def int_reg(name, addr, access="RW", length=4, sign="Unsigned", port="Device", cache="NoCache", pindex=None):
    emit('<IntReg Name="%s">\n' % name)
    emit("  <Address>0x%x</Address>\n" % addr)
    if pindex:
        emit('  <pIndex Offset="%d">%s</pIndex>\n' % pindex)
    emit("  <Length>%d</Length>\n  <AccessMode>%s</AccessMode>\n  <pPort>%s</pPort>\n" % (length, access, port))
    emit("  <Cachable>%s</Cachable>\n" % cache)
    emit("  <Sign>%s</Sign>\n  <Endianess>BigEndian</Endianess>\n</IntReg>\n" % sign)


def masked_reg(name, addr, lsb, msb=None, access="RW", length=4):
    emit('<MaskedIntReg Name="%s">\n' % name)
    emit("  <Address>0x%x</Address>\n  <Length>%d</Length>\n  <AccessMode>%s</AccessMode>\n" % (addr, length, access))
    emit("  <pPort>Device</pPort>\n  <Cachable>NoCache</Cachable>\n")
    if msb is None:
        emit("  <Bit>%d</Bit>\n" % lsb)
    else:
        emit("  <LSB>%d</LSB>\n  <MSB>%d</MSB>\n" % (lsb, msb))
    emit("  <Sign>Unsigned</Sign>\n  <Endianess>BigEndian</Endianess>\n</MaskedIntReg>\n")


def integer(name, pvalue=None, value=None, vmin=None, vmax=None, inc=None, pmin=None, pmax=None, rep="Linear",
            unit=None, desc=None, vis="Beginner", ns="Standard", access=None, **kw):
    feature_head("Integer", name, desc, vis, ns, access, **kw)
    value_or_pvalue(pvalue, None if pvalue else "%d" % value)
    if pmin:
        emit("  <pMin>%s</pMin>\n" % pmin)
    elif vmin is not None:
        emit("  <Min>%d</Min>\n" % vmin)
    if pmax:
        emit("  <pMax>%s</pMax>\n" % pmax)
    elif vmax is not None:
        emit("  <Max>%d</Max>\n" % vmax)
    if inc:
        emit("  <Inc>%d</Inc>\n" % inc)
    if unit:
        emit("  <Unit>%s</Unit>\n" % escape(unit))
    emit("  <Representation>%s</Representation>\n</Integer>\n" % rep)


def reg_integer(name, addr, access="RW", length=4, **kw):
    """Integer feature over its own register <name>Reg."""
    int_reg(name + "Reg", addr, access=access, length=length)
    integer(name, pvalue=name + "Reg", **kw)


def float_reg(name, addr, access="RW", length=4):
    emit('<FloatReg Name="%s">\n' % name)
    emit("  <Address>0x%x</Address>\n  <Length>%d</Length>\n  <AccessMode>%s</AccessMode>\n" % (addr, length, access))
    emit("  <pPort>Device</pPort>\n  <Cachable>NoCache</Cachable>\n  <Endianess>BigEndian</Endianess>\n</FloatReg>\n")


def float_feature(name, pvalue=None, value=None, vmin=None, vmax=None, unit=None, inc=None, precision=None,
                  desc=None, vis="Beginner", ns="Standard", access=None, rep="Linear", **kw):
    feature_head("Float", name, desc, vis, ns, access, **kw)
    value_or_pvalue(pvalue, repr(value))
    if vmin is not None:
        emit("  <Min>%s</Min>\n" % repr(float(vmin)))
    if vmax is not None:
        emit("  <Max>%s</Max>\n" % repr(float(vmax)))
    if inc is not None:
        emit("  <Inc>%s</Inc>\n" % repr(float(inc)))
    if unit:
        emit("  <Unit>%s</Unit>\n" % escape(unit))
    emit("  <Representation>%s</Representation>\n" % rep)
    if precision is not None:
        emit("  <DisplayPrecision>%d</DisplayPrecision>\n" % precision)
    emit("</Float>\n")


def converter(name, pvalue, formula_to, formula_from, vmin, vmax, unit=None, desc=None, vis="Beginner",
              ns="Standard", variables=None, precision=None, **kw):
    feature_head("Converter", name, desc, vis, ns, **kw)
    for var, node in (variables or {}).items():
        emit('  <pVariable Name="%s">%s</pVariable>\n' % (var, node))
    emit("  <FormulaTo>%s</FormulaTo>\n  <FormulaFrom>%s</FormulaFrom>\n" % (escape(formula_to), escape(formula_from)))
    emit("  <pValue>%s</pValue>\n" % pvalue)
    if unit:
        emit("  <Unit>%s</Unit>\n" % escape(unit))
    emit("  <Representation>Linear</Representation>\n")
    if precision is not None:
        emit("  <DisplayPrecision>%d</DisplayPrecision>\n" % precision)
    emit("  <Slope>Increasing</Slope>\n</Converter>\n")
    # Range of a converter comes from its own limits in this description.
    return vmin, vmax


def float_over(name, reg_name, vmin, vmax, **kw):
    float_feature(name, pvalue=reg_name, vmin=vmin, vmax=vmax, **kw)


def swiss(name, variables, formula, kind="IntSwissKnife", vis="Invisible", desc=None, ns="Custom", unit=None):
    emit('<%s Name="%s"%s>\n' % (kind, name, ns_attr(ns)))
    if desc:
        emit(common(name, desc=desc, vis=vis))
    else:
        emit("  <Visibility>%s</Visibility>\n" % vis)
    for var, node in variables.items():
        emit('  <pVariable Name="%s">%s</pVariable>\n' % (var, node))
    emit("  <Formula>%s</Formula>\n" % escape(formula))
    if unit:
        emit("  <Unit>%s</Unit>\n" % escape(unit))
    emit("</%s>\n" % kind)


def enumeration(name, entries, pvalue, desc=None, vis="Beginner", ns="Standard", access=None, entry_extra=None, **kw):
    """entries: list of (symbol, value[, display, visibility])."""
    feature_head("Enumeration", name, desc, vis, ns, access, **kw)
    for e in entries:
        sym, val = e[0], e[1]
        disp = e[2] if len(e) > 2 and e[2] else split_words(sym)
        evis = e[3] if len(e) > 3 else "Beginner"
        # Aravis takes an entry's name as its symbol, so entries are named
        # by their symbol (the same name may appear in several enumerations).
        emit('  <EnumEntry Name="%s"%s>\n' % (sym, ns_attr(ns)))
        emit("    <ToolTip>%s</ToolTip>\n" % escape(disp))
        emit("    <DisplayName>%s</DisplayName>\n" % escape(disp))
        emit("    <Visibility>%s</Visibility>\n" % evis)
        if entry_extra and sym in entry_extra:
            emit("    <pIsAvailable>%s</pIsAvailable>\n" % entry_extra[sym])
        emit("    <Value>%d</Value>\n" % val)
        emit("    <Symbolic>%s</Symbolic>\n" % sym)
        emit("  </EnumEntry>\n")
    emit("  <pValue>%s</pValue>\n</Enumeration>\n" % pvalue)


def boolean(name, pvalue, desc=None, vis="Beginner", ns="Standard", access=None, **kw):
    feature_head("Boolean", name, desc, vis, ns, access, **kw)
    emit("  <pValue>%s</pValue>\n  <OnValue>1</OnValue>\n  <OffValue>0</OffValue>\n</Boolean>\n" % pvalue)


def command(name, pvalue, value=1, desc=None, vis="Beginner", ns="Standard", **kw):
    feature_head("Command", name, desc, vis, ns, **kw)
    emit("  <pValue>%s</pValue>\n  <CommandValue>%d</CommandValue>\n</Command>\n" % (pvalue, value))


def string_reg(name, addr, length, access="RW", desc=None, vis="Beginner", ns="Standard", **kw):
    feature_head("StringReg", name, desc, vis, ns, **kw)
    emit("  <Address>0x%x</Address>\n  <Length>%d</Length>\n  <AccessMode>%s</AccessMode>\n" % (addr, length, access))
    emit("  <pPort>Device</pPort>\n  <Cachable>NoCache</Cachable>\n</StringReg>\n")


# --------------------------------------------------------------------------
emit('<?xml version="1.0" encoding="utf-8"?>\n')
emit("<!-- Generated by make_simcam_xml.py: edit the script, not this file. -->\n")
emit('<RegisterDescription ModelName="SimCam" VendorName="Lumidor" ToolTip="Lumidor simulated GigE Vision camera" '
     'StandardNameSpace="GEV" SchemaMajorVersion="1" SchemaMinorVersion="1" SchemaSubMinorVersion="0" '
     'MajorVersion="1" MinorVersion="0" SubMinorVersion="0" ProductGuid="6B2C1C2E-4C55-4D00-9A11-53494D43414D" '
     'VersionGuid="6B2C1C2E-4C55-4D00-9A11-000000010000" '
     'xmlns="http://www.genicam.org/GenApi/Version_1_1" '
     'xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
     'xsi:schemaLocation="http://www.genicam.org/GenApi/Version_1_1 http://www.genicam.org/GenApi/GenApiSchema_Version_1_1.xsd">\n')

filler_blocks = ["ColorPipeline", "NoiseReduction", "DefectCorrection", "LensShading"]
filler_stages = ["Coarse", "Fine", "Final"]

category("Root", ["DeviceControl", "ImageFormatControl", "AcquisitionControl", "AnalogControl",
                  "UserSetControl", "EventControl", "TransportLayerControl", "TestControl", "ExtendedControl"],
         desc="All features of the camera.")

# ---- Device control ------------------------------------------------------
category("DeviceControl", ["DeviceVendorName", "DeviceModelName", "DeviceVersion", "DeviceManufacturerInfo",
                           "DeviceSerialNumber", "DeviceUserID", "DeviceScanType", "DeviceTemperature",
                           "DeviceLinkHeartbeatMode"])
string_reg("DeviceVendorName", 0x48, 32, "RO", desc="Name of the manufacturer of the device.")
string_reg("DeviceModelName", 0x68, 32, "RO", desc="Model of the device.")
string_reg("DeviceVersion", 0x88, 32, "RO", desc="Version of the device.")
string_reg("DeviceManufacturerInfo", 0xa8, 48, "RO", desc="Manufacturer information about the device.")
string_reg("DeviceSerialNumber", 0xd8, 16, "RO", desc="Serial number of the device.")
string_reg("DeviceUserID", 0xe8, 16, "RW", desc="User-programmable device identifier.")
int_reg("DeviceScanTypeReg", 0x1000)
enumeration("DeviceScanType", [("Areascan", 0), ("Linescan", 1, None, "Invisible")], "DeviceScanTypeReg",
            desc="Scan type of the sensor.", access="RO")
float_feature("DeviceTemperature", value=41.5, unit="C", access="RO", precision=1,
              desc="Device temperature in degrees Celsius.", vis="Expert")
int_reg("DeviceLinkHeartbeatModeReg", 0x1004)
enumeration("DeviceLinkHeartbeatMode", [("On", 0), ("Off", 1)], "DeviceLinkHeartbeatModeReg",
            desc="Activates or deactivates the link's heartbeat.", vis="Guru")

# ---- Image format --------------------------------------------------------
category("ImageFormatControl", ["SensorWidth", "SensorHeight", "WidthMax", "HeightMax", "Width", "Height",
                                "OffsetX", "OffsetY", "BinningHorizontal", "BinningVertical", "ReverseX",
                                "ReverseY", "PixelFormat", "PixelSize", "ImageCompressionMode",
                                "ImageCompressionQuality", "TestImageSelector"])
reg_integer("SensorWidth", 0x11c, access="RO", vmin=1, vmax=16384, unit="px",
            desc="Effective width of the sensor in pixels.", vis="Expert")
reg_integer("SensorHeight", 0x118, access="RO", vmin=1, vmax=16384, unit="px",
            desc="Effective height of the sensor in pixels.", vis="Expert")
swiss("WidthMaxValue", {"SW": "SensorWidth", "OX": "OffsetXReg"}, "SW-OX")
swiss("HeightMaxValue", {"SH": "SensorHeight", "OY": "OffsetYReg"}, "SH-OY")
integer("WidthMax", pvalue="WidthMaxValue", vmin=1, vmax=16384, unit="px",
        desc="Maximum width of the image in pixels at the current offset.", vis="Expert")
integer("HeightMax", pvalue="HeightMaxValue", vmin=1, vmax=16384, unit="px",
        desc="Maximum height of the image in pixels at the current offset.", vis="Expert")
int_reg("WidthReg", 0x100)
int_reg("HeightReg", 0x104)
integer("Width", pvalue="WidthReg", vmin=16, pmax="WidthMaxValue", inc=2, unit="px",
        desc="Width of the image provided by the device in pixels.")
integer("Height", pvalue="HeightReg", vmin=16, pmax="HeightMaxValue", inc=2, unit="px",
        desc="Height of the image provided by the device in pixels.")
swiss("OffsetXMaxValue", {"SW": "SensorWidth", "W": "WidthReg"}, "SW-W")
swiss("OffsetYMaxValue", {"SH": "SensorHeight", "H": "HeightReg"}, "SH-H")
int_reg("OffsetXReg", 0x130)
int_reg("OffsetYReg", 0x134)
integer("OffsetX", pvalue="OffsetXReg", vmin=0, pmax="OffsetXMaxValue", inc=2, unit="px",
        desc="Horizontal offset from the origin to the region of interest.")
integer("OffsetY", pvalue="OffsetYReg", vmin=0, pmax="OffsetYMaxValue", inc=2, unit="px",
        desc="Vertical offset from the origin to the region of interest.")
reg_integer("BinningHorizontal", 0x108, vmin=1, vmax=4, desc="Number of horizontal pixels to combine.",
            vis="Expert")
reg_integer("BinningVertical", 0x10c, vmin=1, vmax=4, desc="Number of vertical pixels to combine.", vis="Expert")
int_reg("ReverseXReg", 0x1010)
int_reg("ReverseYReg", 0x1014)
boolean("ReverseX", "ReverseXReg", desc="Flip the image horizontally.")
boolean("ReverseY", "ReverseYReg", desc="Flip the image vertically.")
int_reg("PixelFormatReg", 0x128)
pixel_formats = [("Mono8", 0x01080001), ("Mono16", 0x01100007), ("BayerGR8", 0x01080008),
                 ("BayerRG8", 0x01080009), ("BayerGB8", 0x0108000A), ("BayerBG8", 0x0108000B),
                 ("RGB8", 0x02180014, "RGB 8")]
enumeration("PixelFormat", pixel_formats, "PixelFormatReg", desc="Format of the pixels provided by the device.")
swiss("PixelSizeValue", {"PF": "PixelFormatReg"}, "(PF>>16)&255")
integer("PixelSize", pvalue="PixelSizeValue", vmin=1, vmax=64, unit="bpp", access="RO",
        desc="Total size in bits of a pixel of the image.", vis="Expert")
int_reg("ImageCompressionModeReg", 0x1018)
enumeration("ImageCompressionMode", [("Off", 0), ("JPEG", 1)], "ImageCompressionModeReg",
            desc="Compression of the images sent by the device.", vis="Expert")
swiss("ImageCompressionIsJpeg", {"M": "ImageCompressionModeReg"}, "M=1")
int_reg("ImageCompressionQualityReg", 0x101c)
integer("ImageCompressionQuality", pvalue="ImageCompressionQualityReg", vmin=0, vmax=100, inc=1,
        desc="Quality of JPEG compression; available when the compression mode is JPEG.", vis="Expert",
        pis_available="ImageCompressionIsJpeg")
int_reg("TestImageSelectorReg", 0x1020)
enumeration("TestImageSelector", [("Off", 0), ("DiagonalRamp", 1)], "TestImageSelectorReg",
            desc="Test image generated by the device.", vis="Expert")

# ---- Acquisition ---------------------------------------------------------
category("AcquisitionControl", ["AcquisitionMode", "AcquisitionStart", "AcquisitionStop", "AcquisitionFrameRate",
                                "TriggerSelector", "TriggerMode", "TriggerSource", "TriggerActivation",
                                "TriggerSoftware", "ExposureMode", "ExposureTime", "ExposureAuto"])
int_reg("AcquisitionModeReg", 0x12c)
enumeration("AcquisitionMode", [("Continuous", 1), ("SingleFrame", 2), ("MultiFrame", 3)], "AcquisitionModeReg",
            desc="Acquisition mode of the device.")
int_reg("AcquisitionCommandReg", 0x124, access="WO")
command("AcquisitionStart", "AcquisitionCommandReg", 1, desc="Starts the acquisition of the device.")
command("AcquisitionStop", "AcquisitionCommandReg", 0, desc="Stops the acquisition of the device.")
# Converters take their range from the integer they convert, through the
# formula: each raw register gets an integer with limits.
int_reg("AcquisitionFramePeriodReg", 0x138)
integer("AcquisitionFramePeriod", pvalue="AcquisitionFramePeriodReg", vmin=5000, vmax=1000000, unit="us",
        vis="Invisible", ns="Custom", desc="Frame period in microseconds.")
converter("AcquisitionFrameRate", "AcquisitionFramePeriod", "1000000/FROM", "1000000/TO", 1, 200, unit="Hz",
          desc="Frame rate of the acquisition in hertz.", precision=2)
int_reg("TriggerSelectorReg", 0x1030)
enumeration("TriggerSelector", [("FrameStart", 0), ("AcquisitionStart", 1)], "TriggerSelectorReg",
            desc="Trigger to configure.", selected=["TriggerMode", "TriggerSource", "TriggerActivation"])
int_reg("TriggerModeReg", 0x300, pindex=(32, "TriggerSelector"))
enumeration("TriggerMode", [("Off", 0), ("On", 1)], "TriggerModeReg", desc="Controls the selected trigger.")
int_reg("TriggerSourceReg", 0x304, pindex=(32, "TriggerSelector"))
enumeration("TriggerSource", [("Software", 0), ("Line0", 1), ("Line1", 2)], "TriggerSourceReg",
            desc="Source of the selected trigger.")
int_reg("TriggerActivationReg", 0x308, pindex=(32, "TriggerSelector"))
enumeration("TriggerActivation", [("RisingEdge", 0), ("FallingEdge", 1)], "TriggerActivationReg",
            desc="Activation of the selected trigger.", vis="Expert")
int_reg("TriggerSoftwareReg", 0x30c, access="WO")
command("TriggerSoftware", "TriggerSoftwareReg", 1, desc="Generates a software trigger.")
int_reg("ExposureModeReg", 0x1034)
enumeration("ExposureMode", [("Timed", 0), ("TriggerWidth", 1, None, "Expert")], "ExposureModeReg",
            desc="Operation mode of the exposure.", vis="Expert")
int_reg("ExposureTimeRawReg", 0x120)
integer("ExposureTimeRaw", pvalue="ExposureTimeRawReg", vmin=10, vmax=1000000, unit="us", vis="Invisible",
        ns="Custom", desc="Exposure time register in microseconds.")
converter("ExposureTime", "ExposureTimeRaw", "FROM", "TO", 10, 1000000, unit="us",
          desc="Exposure time in microseconds.", precision=0)
int_reg("ExposureAutoReg", 0x1038)
enumeration("ExposureAuto", [("Off", 0), ("Once", 1), ("Continuous", 2)], "ExposureAutoReg",
            desc="Automatic exposure mode.")

# ---- Analog --------------------------------------------------------------
category("AnalogControl", ["GainSelector", "Gain", "GainAuto", "BlackLevel", "Gamma"])
int_reg("GainSelectorReg", 0x1040)
enumeration("GainSelector", [("All", 0)], "GainSelectorReg", desc="Gain to control.", selected=["Gain"])
int_reg("GainRawReg", 0x110)
integer("GainRaw", pvalue="GainRawReg", vmin=0, vmax=240, vis="Invisible", ns="Custom",
        desc="Gain register in tenths of a decibel.")
converter("Gain", "GainRaw", "FROM*10", "TO/10", 0, 24, unit="dB", desc="Amplification of the video signal in dB.",
          precision=1)
int_reg("GainAutoReg", 0x1044)
enumeration("GainAuto", [("Off", 0), ("Once", 1), ("Continuous", 2)], "GainAutoReg", desc="Automatic gain mode.")
float_reg("BlackLevelReg", 0x1048)
float_over("BlackLevel", "BlackLevelReg", 0, 255, desc="Black level of the video signal.", inc=0.5, vis="Expert")
float_reg("GammaReg", 0x104c)
float_over("Gamma", "GammaReg", 0, 4, desc="Gamma correction of pixel intensity.", vis="Expert", precision=2)

# ---- User sets -----------------------------------------------------------
category("UserSetControl", ["UserSetSelector", "UserSetLoad", "UserSetSave", "UserSetDefault"])
int_reg("UserSetSelectorReg", 0x2000)
user_sets = [("Default", 0), ("UserSet1", 1), ("UserSet2", 2)]
enumeration("UserSetSelector", user_sets, "UserSetSelectorReg", desc="User set to load, save or configure.",
            selected=["UserSetLoad", "UserSetSave"])
int_reg("UserSetLoadReg", 0x2004, access="WO")
command("UserSetLoad", "UserSetLoadReg", 1, desc="Loads the selected user set into the device.")
swiss("UserSetSaveAllowed", {"S": "UserSetSelectorReg"}, "S<>0")
int_reg("UserSetSaveReg", 0x2008, access="WO")
command("UserSetSave", "UserSetSaveReg", 1, desc="Saves the current settings into the selected user set.",
        pis_available="UserSetSaveAllowed")
int_reg("UserSetDefaultReg", 0x200c)
enumeration("UserSetDefault", user_sets, "UserSetDefaultReg", desc="User set loaded when the device starts.")

# ---- Events --------------------------------------------------------------
EXPOSURE_END, FRAME_START = 0x9001, 0x9002
category("EventControl", ["EventSelector", "EventNotification", "EventExposureEndData", "EventFrameStartData"],
         vis="Expert")
int_reg("EventSelectorReg", 0x2100)
enumeration("EventSelector", [("ExposureEnd", 0), ("FrameStart", 1)], "EventSelectorReg",
            desc="Event to configure.", vis="Expert", selected=["EventNotification"])
int_reg("EventNotificationReg", 0x2110, pindex=(4, "EventSelector"))
enumeration("EventNotification", [("Off", 0), ("On", 1)], "EventNotificationReg",
            desc="Sends a message-channel event when the selected event occurs.", vis="Expert")
for ev_name, ev_id in (("ExposureEnd", EXPOSURE_END), ("FrameStart", FRAME_START)):
    port = "Event%sPort" % ev_name
    emit('<Port Name="%s">\n  <Visibility>Invisible</Visibility>\n  <EventID>%X</EventID>\n</Port>\n' % (port, ev_id))
    category("Event%sData" % ev_name, ["Event%s" % ev_name, "Event%sTimestamp" % ev_name,
                                       "Event%sFrameID" % ev_name], vis="Expert",
             desc="Data of the %s event." % split_words(ev_name))
    integer("Event%s" % ev_name, value=ev_id, access="RO", rep="HexNumber", vis="Expert",
            desc="Identifier of the %s event." % split_words(ev_name))
    int_reg("Event%sTimestampReg" % ev_name, 0x0, access="RO", length=8, port=port)
    integer("Event%sTimestamp" % ev_name, pvalue="Event%sTimestampReg" % ev_name, vis="Expert",
            desc="Timestamp of the %s event." % split_words(ev_name))
    int_reg("Event%sFrameIDReg" % ev_name, 0x8, access="RO", length=8, port=port)
    integer("Event%sFrameID" % ev_name, pvalue="Event%sFrameIDReg" % ev_name, vis="Expert",
            desc="Frame identifier of the %s event." % split_words(ev_name))

# ---- Transport layer (GigE Vision bootstrap registers) --------------------
category("TransportLayerControl", ["PayloadSize", "GevVersionMajor", "GevVersionMinor", "GevDeviceModeIsBigEndian",
                                   "GevMACAddress", "GevSupportedIPConfigurationLLA",
                                   "GevSupportedIPConfigurationDHCP", "GevSupportedIPConfigurationPersistentIP",
                                   "GevCurrentIPConfigurationLLA", "GevCurrentIPConfigurationDHCP",
                                   "GevCurrentIPConfigurationPersistentIP", "GevCurrentIPAddress",
                                   "GevCurrentSubnetMask", "GevCurrentDefaultGateway", "GevPersistentIPAddress",
                                   "GevPersistentSubnetMask", "GevPersistentDefaultGateway", "GevHeartbeatTimeout",
                                   "GevTimestampTickFrequency", "GevCCP", "GevMessageChannelCount",
                                   "GevStreamChannelCount", "GevMCPHostPort", "GevMCDA", "GevMCTT", "GevMCRC",
                                   "GevSCPHostPort", "GevSCPSFireTestPacket", "GevSCPSDoNotFragment",
                                   "GevSCPSPacketSize", "GevSCPD", "GevSCDA"], vis="Expert")
swiss("PayloadSizeValue", {"W": "WidthReg", "H": "HeightReg", "PF": "PixelFormatReg"}, "W*H*((PF>>16)&255)/8")
integer("PayloadSize", pvalue="PayloadSizeValue", vmin=0, vmax=0x7fffffff, unit="B", access="RO",
        desc="Number of bytes transferred for each image on the stream channel.", vis="Expert")
masked_reg("GevVersionMajorReg", 0x0, 0 + 15, 0, access="RO")
integer("GevVersionMajor", pvalue="GevVersionMajorReg", access="RO", vis="Expert",
        desc="Major version of the GigE Vision standard supported by the device.")
masked_reg("GevVersionMinorReg", 0x0, 31, 16, access="RO")
integer("GevVersionMinor", pvalue="GevVersionMinorReg", access="RO", vis="Expert",
        desc="Minor version of the GigE Vision standard supported by the device.")
masked_reg("GevDeviceModeIsBigEndianReg", 0x4, 0, access="RO")
boolean("GevDeviceModeIsBigEndian", "GevDeviceModeIsBigEndianReg", access="RO", vis="Guru",
        desc="Endianness of the bootstrap registers.")
masked_reg("GevMACAddressReg", 0x8, 63, 16, access="RO", length=8)
integer("GevMACAddress", pvalue="GevMACAddressReg", rep="MACAddress", access="RO", vis="Expert",
        desc="MAC address of the network interface.")
for cfg, bit in (("LLA", 29), ("DHCP", 30), ("PersistentIP", 31)):
    masked_reg("GevSupportedIPConfiguration%sReg" % cfg, 0x10, bit, access="RO")
    boolean("GevSupportedIPConfiguration%s" % cfg, "GevSupportedIPConfiguration%sReg" % cfg, access="RO",
            vis="Guru", desc="Whether the %s configuration is supported." % cfg)
    masked_reg("GevCurrentIPConfiguration%sReg" % cfg, 0x14, bit)
    boolean("GevCurrentIPConfiguration%s" % cfg, "GevCurrentIPConfiguration%sReg" % cfg,
            vis="Beginner" if cfg == "PersistentIP" else "Expert",
            desc="Whether the %s configuration is enabled." % cfg)
for feat, addr, access, desc in (
        ("GevCurrentIPAddress", 0x24, "RO", "Current IP address of the network interface."),
        ("GevCurrentSubnetMask", 0x34, "RO", "Current subnet mask of the network interface."),
        ("GevCurrentDefaultGateway", 0x44, "RO", "Current default gateway of the network interface."),
        ("GevPersistentIPAddress", 0x64c, "RW", "Persistent IP address of the network interface."),
        ("GevPersistentSubnetMask", 0x65c, "RW", "Persistent subnet mask of the network interface."),
        ("GevPersistentDefaultGateway", 0x66c, "RW", "Persistent default gateway of the network interface.")):
    reg_integer(feat, addr, access=access, rep="IPV4Address", desc=desc, vis="Expert", vmin=0, vmax=0xffffffff)
reg_integer("GevHeartbeatTimeout", 0x938, vmin=500, vmax=600000, inc=1, unit="ms", vis="Expert",
            desc="Heartbeat timeout in milliseconds.")
reg_integer("GevTimestampTickFrequency", 0x93c, access="RO", length=8, unit="Hz", vis="Expert",
            desc="Frequency of the device timestamp counter.")
int_reg("GevCCPReg", 0xa00, access="RO")
enumeration("GevCCP", [("OpenAccess", 0), ("ExclusiveAccess", 1), ("ControlAccess", 2)], "GevCCPReg",
            desc="Control channel privilege held by the controlling application.", vis="Guru", access="RO")
reg_integer("GevMessageChannelCount", 0x900, access="RO", vis="Guru",
            desc="Number of message channels supported by the device.")
reg_integer("GevStreamChannelCount", 0x904, access="RO", vis="Guru",
            desc="Number of stream channels supported by the device.")
masked_reg("GevMCPHostPortReg", 0xb00, 31, 16)
integer("GevMCPHostPort", pvalue="GevMCPHostPortReg", vmin=0, vmax=65535, vis="Guru",
        desc="UDP port on the host that receives message-channel packets.")
reg_integer("GevMCDA", 0xb10, rep="IPV4Address", vis="Guru", vmin=0, vmax=0xffffffff,
            desc="Destination address of the message channel.")
reg_integer("GevMCTT", 0xb14, unit="ms", vis="Guru", vmin=0, vmax=0xffffffff,
            desc="Transmission timeout of the message channel.")
reg_integer("GevMCRC", 0xb18, vis="Guru", vmin=0, vmax=0xffffffff,
            desc="Retry count of the message channel.")
masked_reg("GevSCPHostPortReg", 0xd00, 31, 16)
integer("GevSCPHostPort", pvalue="GevSCPHostPortReg", vmin=0, vmax=65535, vis="Expert",
        desc="UDP port on the host that receives the stream.")
masked_reg("GevSCPSFireTestPacketReg", 0xd04, 0)
boolean("GevSCPSFireTestPacket", "GevSCPSFireTestPacketReg", vis="Guru", desc="Sends a test packet.")
masked_reg("GevSCPSDoNotFragmentReg", 0xd04, 1)
boolean("GevSCPSDoNotFragment", "GevSCPSDoNotFragmentReg", vis="Guru", desc="Sets the do-not-fragment bit.")
masked_reg("GevSCPSPacketSizeReg", 0xd04, 31, 16)
integer("GevSCPSPacketSize", pvalue="GevSCPSPacketSizeReg", vmin=576, vmax=65500, inc=4, unit="B", vis="Expert",
        desc="Size of the stream packets in bytes.")
reg_integer("GevSCPD", 0xd08, vmin=0, vmax=0xffffffff, vis="Expert",
            desc="Delay between stream packets in timestamp ticks.")
reg_integer("GevSCDA", 0xd18, rep="IPV4Address", vmin=0, vmax=0xffffffff, vis="Expert",
            desc="Destination address of the stream.")

# ---- Test features -------------------------------------------------------
category("TestControl", ["TestRegister", "TestReadOnlyValue", "TestInvisibleValue", "TestAvailabilityGate",
                         "TestGatedValue", "TestHoldCommand", "TestHoldRelease", "TestPendingCount"], vis="Guru",
         ns="Custom")
emit('<Register Name="TestRegister" NameSpace="Custom">\n')
emit(common("TestRegister", desc="Sixteen bytes of raw memory.", vis="Guru"))
emit("  <Address>0x4100</Address>\n  <Length>16</Length>\n  <AccessMode>RW</AccessMode>\n"
     "  <pPort>Device</pPort>\n  <Cachable>NoCache</Cachable>\n</Register>\n")
int_reg("TestReadOnlyValueReg", 0x1f0, access="RO")
integer("TestReadOnlyValue", pvalue="TestReadOnlyValueReg", rep="HexNumber", vis="Guru", ns="Custom",
        desc="A read-only value.")
reg_integer("TestInvisibleValue", 0x4004, vmin=0, vmax=1000, vis="Invisible", ns="Custom",
            desc="A value that is never shown.")
int_reg("TestAvailabilityGateReg", 0x4008)
boolean("TestAvailabilityGate", "TestAvailabilityGateReg", vis="Guru", ns="Custom",
        desc="Makes TestGatedValue available.")
reg_integer("TestGatedValue", 0x400c, vmin=0, vmax=100, vis="Guru", ns="Custom",
            desc="Available only while TestAvailabilityGate is set.", pis_available="TestAvailabilityGate")
int_reg("TestHoldReg", 0x4000)
command("TestHoldCommand", "TestHoldReg", 1, vis="Guru", ns="Custom",
        desc="A command that stays in progress until TestHoldRelease is executed.")
emit('<IntConverter Name="TestHoldClear">\n  <Visibility>Invisible</Visibility>\n'
     '  <FormulaTo>0</FormulaTo>\n  <FormulaFrom>0</FormulaFrom>\n  <pValue>TestHoldReg</pValue>\n</IntConverter>\n')
command("TestHoldRelease", "TestHoldClear", 1, vis="Guru", ns="Custom", desc="Completes TestHoldCommand.")
integer("TestPendingCount", pvalue="TestHoldReg", vis="Guru", ns="Custom", access="RO",
        desc="Non-zero while TestHoldCommand is in progress.")

# ---- Generated filler features ---------------------------------------------
def filler_feature(name, kind, n, block, stage, vis, address):
    desc = "%s parameter %d of the %s stage of %s." % (
        {"Int": "Integer", "Float": "Float", "Enum": "Mode", "Bool": "Switch", "Str": "Text"}[kind], n + 1,
        stage.lower(), split_words(block).lower())
    if kind == "Int":
        reg_integer(name, address, vmin=0, vmax=1000 * (n + 1), inc=1, vis=vis, ns="Custom", desc=desc)
    elif kind == "Float":
        float_reg(name + "Reg", address)
        float_over(name, name + "Reg", -100, 100, unit="%", vis=vis, ns="Custom", desc=desc, precision=2)
    elif kind == "Enum":
        int_reg(name + "Reg", address)
        enumeration(name, [("Off", 0), ("Low", 1), ("Medium", 2), ("High", 3)], name + "Reg", vis=vis,
                    ns="Custom", desc=desc)
    elif kind == "Bool":
        int_reg(name + "Reg", address)
        boolean(name, name + "Reg", vis=vis, ns="Custom", desc=desc)
    else:
        string_reg(name, address, 16, vis=vis, ns="Custom", desc=desc)
        return address + 16
    return address + 4


def generated_categories(top, prefix, blocks, stages, kinds, address, feature, stage_desc, block_desc, top_desc,
                         top_vis):
    """A category top over one category per block, each over one category per
    stage of 24 generated features named <prefix><block><stage><kind><nn>,
    kinds and visibility taken in turn. feature(name, kind, n, block, stage,
    vis, address) writes one feature at address and returns the next free one."""
    block_cats = []
    for b in blocks:
        stage_cats = []
        for s in stages:
            cat = prefix + b + s
            feats = []
            for n in range(24):
                kind = kinds[n % len(kinds)]
                name = "%s%s%02d" % (cat, kind, n + 1)
                address = feature(name, kind, n, b, s, ["Beginner", "Expert", "Guru"][n % 3], address)
                feats.append(name)
            category(cat, feats, ns="Custom", desc=stage_desc(b, s))
            stage_cats.append(cat)
        category(prefix + b, stage_cats, ns="Custom", desc=block_desc(b))
        block_cats.append(prefix + b)
    category(top, block_cats, ns="Custom", desc=top_desc, vis=top_vis)
    assert address < 0x10000


generated_categories("ExtendedControl", "", filler_blocks, filler_stages, ["Int", "Float", "Enum", "Bool", "Str", "Int"],
                     0x5000, filler_feature, lambda b, s: "%s, %s stage." % (split_words(b), s.lower()),
                     lambda b: "Processing block %s." % split_words(b).lower(),
                     "Image processing blocks of the simulated camera.", "Expert")

emit('<Port Name="Device" NameSpace="Standard">\n  <ToolTip>Port of the device.</ToolTip>\n</Port>\n')
emit("</RegisterDescription>\n")

sys.stdout.write("".join(out))
