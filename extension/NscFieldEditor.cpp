#include "NscFieldEditor.h"

#include <utility>

NscFieldEditor::NscFieldEditor(Info info) : NscExtension(std::move(info)) {}

NscFieldEditor::~NscFieldEditor() = default;

void NscFieldEditor::show() {}

void NscFieldEditor::hide() {}
