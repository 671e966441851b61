#include "ListColumns.h"

#include <QtGlobal>

const ListColumn List_columns[List_column_count] = {
    {"", nullptr, nullptr, nullptr, 0, 0},
    {"", QT_TRANSLATE_NOOP("SoNodescopeList", "Ignore"), "ignore.png",
     QT_TRANSLATE_NOOP("SoNodescopeList", "This field is ignored"), 0, 20},
    {"", QT_TRANSLATE_NOOP("SoNodescopeList", "Connected"), "connection.png",
     QT_TRANSLATE_NOOP("SoNodescopeList", "This field is connected"), 0, 20},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Node Type"), QT_TRANSLATE_NOOP("SoNodescopeList", "Node Type"), nullptr,
     nullptr, 18, 0},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Node Name"), QT_TRANSLATE_NOOP("SoNodescopeList", "Node Name"), nullptr,
     nullptr, 18, 0},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Field Type"), QT_TRANSLATE_NOOP("SoNodescopeList", "Field Type"), nullptr,
     nullptr, 14, 0},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Field Name"), QT_TRANSLATE_NOOP("SoNodescopeList", "Field Name"), nullptr,
     nullptr, 24, 0},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Field Value"), QT_TRANSLATE_NOOP("SoNodescopeList", "Field Value"), nullptr,
     nullptr, 24, 0},
    {QT_TRANSLATE_NOOP("SoNodescopeList", "Node NetName"), QT_TRANSLATE_NOOP("SoNodescopeList", "Node NetName"),
     nullptr, nullptr, 18, 0},
};
