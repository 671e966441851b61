#include <extension/NscExtension.h>
#include <extension/NscPlugin.h>
#include <vexel/base/SoPreferences.h>

#include <stdexcept>

namespace {

void record(const SbString& what)
{
    const SbString log = SoPreferences::getString("TEST_PLUGIN_LOG", "");
    SoPreferences::setValue("TEST_PLUGIN_LOG", log + what + "\n");
}

/** Writes down what happens to it where the test can read it. Some names make it fail. */
class RecordingExtension : public NscExtension {
public:
    explicit RecordingExtension(const SbString& name) : NscExtension({name})
    {
        if (name == "fails when made")
            throw std::runtime_error("no memory for it");
        record("create " + name);
    }
    ~RecordingExtension() override { record("delete " + getInfo().name); }

    void addControlledExtension(NscExtension* extension) override
    {
        if (getInfo().name == "fails when connected")
            throw std::runtime_error("wants none");
        record("add " + extension->getInfo().name + " to " + getInfo().name);
    }
    void activate() override
    {
        record("activate " + getInfo().name);
        if (getInfo().name == "fails when activated")
            throw std::runtime_error("has no display");
        if (getInfo().name == "throws a number")
            throw 7;
        if (getInfo().name == "throws no words")
            throw std::runtime_error("");
    }
    void show() override { record("show " + getInfo().name); }
    void hide() override { record("hide " + getInfo().name); }
};

class TestPlugin : public NscPlugin {
public:
    ~TestPlugin() override { record("delete plug-in"); }

    SbString getName() const override { return "TestPlugin"; }
    NscExtension* createExtension(const SbString& name) override
    {
        return name == "unknown" ? nullptr : new RecordingExtension(name);
    }
};

} // namespace

NSC_PLUGIN(TestPlugin)
