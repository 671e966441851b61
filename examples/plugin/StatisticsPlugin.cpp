#include "StatisticsExtension.h"
#include "TimeEditor.h"

#include <extension/NscPlugin.h>

// [plugin]
class StatisticsPlugin : public NscPlugin {
public:
    SbString getName() const override { return "Statistics"; }

    NscExtension* createExtension(const SbString& name) override
    {
        if (name == "Statistics")
            return new StatisticsExtension(name);
        if (name == "SFTime")
            return new TimeEditor(name);
        return nullptr;
    }
};

NSC_PLUGIN(StatisticsPlugin)
// [end]
