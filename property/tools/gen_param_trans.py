#!/usr/bin/env python3
"""Writes property/worker/ParamTransTables.cpp and property/i18n/property_tables_zh_CN.ts from the
three tables beside this script. Run it after editing a table and commit both outputs; the
build itself never runs Python.

    python3 property/tools/gen_param_trans.py
"""
import os
import re
import sys
from xml.sax.saxutils import escape

HERE = os.path.dirname(os.path.abspath(__file__))
PROPERTY = os.path.dirname(HERE)
CONTEXT = "CPropertyForm"
CHANNELS = range(32)


def lines_of(name):
    with open(os.path.join(HERE, name), encoding="utf-8") as f:
        for raw in f:
            line = raw.rstrip("\n")
            if line.strip() and not line.startswith("#"):
                yield line


def split_words(ident):
    return " ".join(re.findall(r"[A-Z]+(?=[A-Z][a-z])|[A-Z]?[a-z]+|[A-Z]+|\d+", ident))


# ---- value tables -------------------------------------------------------------------------
lists, value_tables = {}, []


def expand(tokens):
    out = []
    for t in tokens:
        out.extend(lists[t[1:]] if t.startswith("$") else [t])
    return out


def tokens(text):
    # symbols are separated by blanks; braced texts such as "{Not Available}" stay whole
    return re.findall(r"\{[^}]*\}|\S+", text)


for line in lines_of("param_trans_values.txt"):
    head, _, rest = line.partition(":")
    if line.startswith("$"):
        lists[head[1:]] = expand(tokens(rest))
    elif line.startswith("="):
        value_tables.append((head[1:], expand(tokens(rest))))
    else:
        sys.exit("bad value line: " + line)
pixel_formats = set(lists["pixels"])

# ---- symbol translations ------------------------------------------------------------------
symbol_zh = {}
for line in lines_of("param_trans_symbols.txt"):
    sym, zh = line.split("|")
    if sym in symbol_zh:
        sys.exit("symbol twice: " + sym)
    symbol_zh[sym] = zh

EDGE = {"RisingEdge": "上升沿", "FallingEdge": "下降沿", "AnyEdge": "任意沿"}
PHASE = {"Start": "开始", "End": "结束", "Active": "有效"}
NUMBERED = [
    ("Line", "线路"), ("UserOutput", "用户输出"), ("Counter", "计数器"), ("Timer", "定时器"),
    ("Encoder", "编码器"), ("Action", "动作"), ("SoftwareSignal", "软件信号"), ("LinkTrigger", "链路触发"),
    ("UserLed", "用户指示灯"), ("UserSet", "用户集"), ("Region", "区域"), ("Stream", "数据流"),
    ("ROI", "感兴趣区域"), ("AOI", "自动功能区域"), ("Tap", "抽头"), ("Offset", "偏移"),
]
UNITS = {"ns": "纳秒", "us": "微秒", "ms": "毫秒", "s": "秒"}


def rule_zh(sym):
    for prefix, zh in NUMBERED:
        m = re.fullmatch(prefix + r"(\d+)(.*)", sym)
        if m:
            tail = m.group(2)
            if not tail:
                return zh + m.group(1)
            if tail in EDGE:
                return zh + m.group(1) + EDGE[tail]
            if tail in PHASE:
                return zh + m.group(1) + PHASE[tail]
    m = re.fullmatch(r"CC(\d)", sym)
    if m:
        return "相机控制线CC" + m.group(1)
    m = re.fullmatch(r"Baud(\d+)", sym)
    if m:
        return m.group(1) + " 波特"
    m = re.fullmatch(r"Bpp(\d+)", sym)
    if m:
        return m.group(1) + " 位"
    m = re.fullmatch(r"Geometry_(.+)", sym)
    if m:
        return "抽头布局 " + m.group(1).replace("_", "-")
    m = re.fullmatch(r"Gain(\d)(\d)", sym)
    if m:
        return "系数" + m.group(1) + m.group(2)
    m = re.fullmatch(r"Within(\d+)(?:p(\d+))?(ns|us|ms|s)", sym)
    if m:
        num = m.group(1) + ("." + m.group(2) if m.group(2) else "")
        return num + UNITS[m.group(3)] + "以内"
    return None


# ---- features -----------------------------------------------------------------------------
features = []  # (name, display, description, zh label, zh description)


def add_event_features():
    for ev in lists["events"]:
        disp = split_words(ev)
        zh = symbol_zh.get(ev) or rule_zh(ev) or feature_zh_label.get(ev)
        if not zh:
            sys.exit("no Chinese for event " + ev)
        features.extend([
            ("Event%sData" % ev, "Event %s Data" % disp,
             "Category for the data sent with the %s event." % disp, zh + "事件数据", zh + "事件所附数据的类别。"),
            ("Event%s" % ev, "Event %s" % disp,
             "Identifier of the %s event." % disp, zh + "事件", zh + "事件的标识。"),
            ("Event%sTimestamp" % ev, "Event %s Timestamp" % disp,
             "Time at which the %s event occurred." % disp, zh + "事件时间戳", zh + "事件发生的时间。"),
            ("Event%sFrameID" % ev, "Event %s Frame ID" % disp,
             "Frame that the %s event belongs to." % disp, zh + "事件帧号", zh + "事件所属的帧。"),
        ])


def add_channel_features():
    for n in CHANNELS:
        features.extend([
            ("StreamChannel%dPacketResendDestination" % n, "Stream Channel %d Packet Resend Destination" % n,
             "Sends the resent packets of stream channel %d to the address that asked for them." % n,
             "流通道%d重传包目标" % n, "将流通道%d的重传数据包发送到请求重传的地址。" % n),
            ("StreamChannel%dExtendedChunkData" % n, "Stream Channel %d Extended Chunk Data" % n,
             "Uses the extended chunk data layout on stream channel %d." % n,
             "流通道%d扩展块数据" % n, "在流通道%d上使用扩展块数据格式。" % n),
            ("StreamChannel%dMultiZone" % n, "Stream Channel %d Multi Zone" % n,
             "Splits each image into several zones on stream channel %d." % n,
             "流通道%d多区域传输" % n, "在流通道%d上将每帧图像分为多个区域传输。" % n),
        ])


feature_zh_label = {}
raw = list(lines_of("param_trans_features.txt"))
for line in raw:  # labels first, so that event expansion can borrow them
    if not line.startswith("@"):
        parts = line.split("|")
        feature_zh_label[parts[0]] = parts[3]
for line in raw:
    if line == "@event":
        add_event_features()
    elif line == "@channel":
        add_channel_features()
    else:
        parts = [p.strip() for p in line.split("|")]
        if len(parts) != 5 or not all(parts[i] for i in (0, 2, 3, 4)):
            sys.exit("bad feature line: " + line)
        name, disp, desc, zh, zh_desc = parts
        features.append((name, disp or split_words(name), desc, zh, zh_desc))

seen = set()
for f in features:
    if f[0] in seen:
        sys.exit("feature twice: " + f[0])
    seen.add(f[0])


def symbol_translation(sym):
    if sym in pixel_formats:
        return None
    zh = symbol_zh.get(sym) or rule_zh(sym) or feature_zh_label.get(sym)
    if not zh:
        sys.exit("no Chinese for symbol " + sym)
    return zh


# ---- translation catalogue ----------------------------------------------------------------
catalogue = {}  # English source -> Chinese


def put(src, zh):
    if zh is None:
        return
    old = catalogue.get(src)
    if old is not None and old != zh:
        print("warning: '%s' translated both as '%s' and '%s'; keeping the first" % (src, old, zh))
        return
    catalogue.setdefault(src, zh)


for name, disp, desc, zh, zh_desc in features:
    put(name, zh)
    put(disp, zh)
    put(desc, zh_desc)
for _, syms in value_tables:
    for s in syms:
        put(s, symbol_translation(s))


# ---- outputs ------------------------------------------------------------------------------
def c_str(s):
    assert all(32 <= ord(c) < 127 for c in s), s
    return '"' + s.replace("\\", "\\\\").replace('"', '\\"') + '"'


def noop(s):
    return 'QT_TRANSLATE_NOOP("%s", %s)' % (CONTEXT, c_str(s))


def write_cpp():
    out = []
    out.append("// Feature-name translation tables. Generated by property/tools/gen_param_trans.py from the\n"
               "// text tables beside it: edit those and run the script again rather than editing this file.\n"
               "// The English texts are marked for lupdate in the CPropertyForm context; the Chinese ones live\n"
               "// in property/i18n/property_tables_zh_CN.ts.\n")
    out.append('#include "ParamTransTables.h"\n\n#include <QCoreApplication>\n\n')
    out.append("QMap<QString, QString> g_mapNameToTrans;\n"
               "QMap<QString, QString> g_mapNameToDispTrans;\n"
               "QMap<QString, QString> g_mapNameToDespTrans;\n"
               "QMap<QString, QMap<QString, QString>> g_mapNameToValueTransMap;\n\n")
    out.append("namespace {\n\n")
    out.append("struct SFeatureText\n{\n    const char* name;\n    const char* display;\n"
               "    const char* description;\n};\n\n")
    out.append("// One record per feature, in insertion order (device control first).\n")
    out.append("const SFeatureText kFeatureTexts[] = {\n")
    for name, disp, desc, _, _ in features:
        out.append("    {%s,\n     %s,\n     %s},\n" % (noop(name), noop(disp), noop(desc)))
    out.append("};\n\n")
    # Enumerations that share one list of symbols (the pixel-format selectors,
    # say) share one array.
    lists = []
    list_index = {}
    for feat, syms in value_tables:
        key = tuple(syms)
        if key not in list_index:
            list_index[key] = len(lists)
            lists.append(syms)
    out.append("// Lists of enumeration symbols, each closed by nullptr.\n")
    for i, syms in enumerate(lists):
        out.append("const char* const kSymbols%d[] = {\n" % i)
        row = "   "
        for s in syms:
            item = " %s," % noop(s)
            if len(row) + len(item) > 110:
                out.append(row + "\n")
                row = "   "
            row += item
        out.append(row + " nullptr};\n")
    out.append("\nstruct SValueTable\n{\n    const char* feature;\n    const char* const* symbols;\n};\n\n")
    out.append("// Enumeration value tables: the feature name and its list of symbols.\n")
    out.append("const SValueTable kValueTables[] = {\n")
    for feat, syms in value_tables:
        out.append("    {%s, kSymbols%d},\n" % (c_str(feat), list_index[tuple(syms)]))
    out.append("};\n\n")
    out.append("QString translated(const char* text)\n{\n"
               '    return QCoreApplication::translate("CPropertyForm", text);\n}\n\n'
               "} // namespace\n\n")
    out.append("void fillParamTransTables()\n{\n"
               "    clearParamTransTables();\n"
               "    for (const SFeatureText& f : kFeatureTexts) {\n"
               "        const QString name = QString::fromLatin1(f.name);\n"
               "        g_mapNameToTrans.insert(name, translated(f.name));\n"
               "        g_mapNameToDispTrans.insert(name, translated(f.display));\n"
               "        g_mapNameToDespTrans.insert(name, translated(f.description));\n"
               "    }\n"
               "    for (const SValueTable& table : kValueTables) {\n"
               "        QMap<QString, QString> values;\n"
               "        for (const char* const* p = table.symbols; *p; ++p)\n"
               "            values.insert(QString::fromLatin1(*p), translated(*p));\n"
               "        g_mapNameToValueTransMap.insert(QString::fromLatin1(table.feature), values);\n"
               "    }\n"
               "}\n\n"
               "void clearParamTransTables()\n{\n"
               "    g_mapNameToTrans.clear();\n"
               "    g_mapNameToDispTrans.clear();\n"
               "    g_mapNameToDespTrans.clear();\n"
               "    g_mapNameToValueTransMap.clear();\n"
               "}\n")
    with open(os.path.join(PROPERTY, "worker", "ParamTransTables.cpp"), "w", encoding="utf-8") as f:
        f.write("".join(out))


def write_ts():
    out = ['<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n<TS version="2.1" language="zh_CN">\n',
           "<context>\n    <name>%s</name>\n" % CONTEXT]
    for src, zh in catalogue.items():
        out.append("    <message>\n        <source>%s</source>\n        <translation>%s</translation>\n"
                   "    </message>\n" % (escape(src), escape(zh)))
    out.append("</context>\n</TS>\n")
    os.makedirs(os.path.join(PROPERTY, "i18n"), exist_ok=True)
    with open(os.path.join(PROPERTY, "i18n", "property_tables_zh_CN.ts"), "w", encoding="utf-8") as f:
        f.write("".join(out))


write_cpp()
write_ts()
idents = {f[0] for f in features} | {s for _, syms in value_tables for s in syms} | {t for t, _ in value_tables}
print("features %d, value tables %d, distinct identifiers %d, translated texts %d"
      % (len(features), len(value_tables), len(idents), len(catalogue)))
