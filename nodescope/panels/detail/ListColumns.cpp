#include "ListColumns.h"

#include <QtGlobal>

#define TEXT(text) QT_TRANSLATE_NOOP("SoNodescopeList", text)

const ListColumn List_columns[List_column_count] = {
    {"", nullptr, nullptr, nullptr, 0, 0},
    {"", TEXT("Ignore"), "ignore.png", TEXT("This field is ignored"), 0, 20},
    {"", TEXT("Connected"), "connection.png", TEXT("This field is connected"), 0, 20},
    {TEXT("Node Type"), TEXT("Node Type"), nullptr, nullptr, 18, 0},
    {TEXT("Node Name"), TEXT("Node Name"), nullptr, nullptr, 18, 0},
    {TEXT("Field Type"), TEXT("Field Type"), nullptr, nullptr, 14, 0},
    {TEXT("Field Name"), TEXT("Field Name"), nullptr, nullptr, 24, 0},
    {TEXT("Field Value"), TEXT("Field Value"), nullptr, nullptr, 24, 0},
    {TEXT("Node NetName"), TEXT("Node NetName"), nullptr, nullptr, 18, 0},
};
