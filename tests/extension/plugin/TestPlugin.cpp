#include <extension/NscExtension.h>
#include <extension/NscPlugin.h>
#include <vexel/base/SoPreferences.h>

namespace {

/** Writes down what happens to it where the test can read it. */
class RecordingExtension : public NscExtension {
public:
    explicit RecordingExtension(const SbString& name) : NscExtension({name}) { record("create"); }
    ~RecordingExtension() override { record("delete"); }

    void addControlledExtension(NscExtension* extension) override
    {
        record("add " + extension->getInfo().name + " to");
    }
    void activate() override { record("activate"); }
    void show() override { record("show"); }
    void hide() override { record("hide"); }

private:
    void record(const SbString& what)
    {
        const SbString log = SoPreferences::getString("TEST_PLUGIN_LOG", "");
        SoPreferences::setValue("TEST_PLUGIN_LOG", log + what + " " + getInfo().name + "\n");
    }
};

class TestPlugin : public NscPlugin {
public:
    SbString getName() const override { return "TestPlugin"; }
    NscExtension* createExtension(const SbString& name) override
    {
        return name == "unknown" ? nullptr : new RecordingExtension(name);
    }
};

} // namespace

NSC_PLUGIN(TestPlugin)
