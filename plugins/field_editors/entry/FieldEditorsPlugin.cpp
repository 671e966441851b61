#include "Translation.h"

#include <extension/NscPlugin.h>
#include <plugins/field_editors/EditorTable.h>
#include <plugins/field_editors/panel/FieldEditorPanel.h>
#include <vexel/base/SbString.h>

namespace {

constexpr char Panel[] = "Field Editor";

/** The panel of field editors, and an editor for each of the common field types. */
class FieldEditorsPlugin : public NscPlugin {
public:
    SbString getName() const override { return "NscDefaults"; }
    NscExtension* createExtension(const SbString& name) override
    {
        return name == Panel ? new FieldEditorPanel({name}) : EditorTable::create(name);
    }

private:
    Translation m_translation;
};

} // namespace

NSC_PLUGIN(FieldEditorsPlugin)
