#include <vexel/io/SoDB.h>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include <vexel/base/SoPath.h>
#include <vexel/base/SoReadError.h>
#include <vexel/draggers/detail/ManipTypes.h>
#include <vexel/engines/detail/EngineTypes.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/fields/detail/FieldTypes.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/GlobalFields.h>
#include <vexel/nodekits/detail/KitTypes.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/detail/NodeTypes.h>
#include <vexel/sensors/SoSensorManager.h>
#include <vexel/sensors/SoTimerSensor.h>

namespace {

/** Holds one field that the whole process knows. */
class SoGlobalField : public SoFieldContainer {
    SO_CONTAINER(SoGlobalField, SoFieldContainer)
public:
    void hold(std::unique_ptr<SoField> field, const SbName& name)
    {
        m_field = std::move(field);
        m_field->setContainer(this);
        m_data.appendUnordered(this, name, m_field.get());
    }
    SoField* field() const { return m_field.get(); }
    const SoFieldData& getFieldData() const override { return m_data; }

private:
    std::unique_ptr<SoField> m_field;
    SoFieldData m_data;
};

/** Any number of readers or one writer; a thread may nest its own locks. */
class DatabaseLock {
public:
    void lockForWriting()
    {
        std::unique_lock lock(m_mutex);
        const auto self = std::this_thread::get_id();
        m_changed.wait(lock, [&] { return m_writer == self || (m_writes == 0 && m_readers.empty()); });
        m_writer = self;
        ++m_writes;
    }
    void unlockForWriting()
    {
        std::lock_guard lock(m_mutex);
        if (m_writes > 0 && --m_writes == 0)
            m_writer = {};
        m_changed.notify_all();
    }
    void lockForReading()
    {
        std::unique_lock lock(m_mutex);
        const auto self = std::this_thread::get_id();
        m_changed.wait(lock, [&] { return m_writes == 0 || m_writer == self; });
        ++m_readers[self];
    }
    void unlockForReading()
    {
        std::lock_guard lock(m_mutex);
        const auto found = m_readers.find(std::this_thread::get_id());
        if (found != m_readers.end() && --found->second == 0)
            m_readers.erase(found);
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread::id m_writer;
    std::map<std::thread::id, int> m_readers;
    int m_writes = 0;
};

struct Database {
    DatabaseLock lock;
    SoSensorManager sensors;
    std::map<SbName, SoGlobalField*> globals;
    bool isInitialized = false;
};

// Not destroyed at the end: sensors and fields in static objects of a program may go later.
Database& database()
{
    static auto* instance = new Database;
    return *instance;
}

void setRealTime(void*, SoSensor*)
{
    if (auto* realTime = static_cast<SoSFTime*>(SoDB::getGlobalField("realTime")))
        realTime->setValue(SbTime::getTimeOfDay());
}

} // namespace

void SoVexelBase::init()
{
    registerFieldTypes();
}

void SoDB::init()
{
    Database& db = database();
    if (db.isInitialized)
        return;
    db.isInitialized = true;
    SoVexelBase::init();
    registerNodeTypes();
    registerKitTypes();
    registerManipTypes();
    registerEngineTypes();
    createGlobalField("realTime", SoSFTime::getClassTypeId());
    static SoTimerSensor clock(setRealTime);
    setRealTime(nullptr, nullptr);
    clock.schedule();
}

bool SoDB::isInitialized()
{
    return database().isInitialized;
}

SbString SoDB::getVersion()
{
    return SbString("Vexel " VEXEL_VERSION);
}

namespace {

// The next object of the class Object; others are an error.
template <class Object, class Read>
bool readOne(Object*& object, Read&& read)
{
    SoBase* base = nullptr;
    object = nullptr;
    if (!read(base))
        return false;
    if (base && !base->isOfType(Object::getClassTypeId()))
        return false;
    object = static_cast<Object*>(base);
    return true;
}

} // namespace

bool SoDB::read(SoInput* in, SoNode*& root)
{
    return readOne(root, [in](SoBase*& base) { return in->readItem(base) != SoInput::Item::Error; });
}

bool SoDB::read(SoInput* in, SoPath*& path)
{
    return readOne(path, [in](SoBase*& base) { return in->readItem(base) != SoInput::Item::Error; });
}

SoSeparator* SoDB::readAll(SoInput* in)
{
    if (!in->checkHeader())
        return nullptr;
    auto* root = new SoSeparator;
    root->ref();
    root->enableNotify(false);
    SoBase* base = nullptr;
    for (;;) {
        const SoInput::Item item = in->readItem(base);
        if (item == SoInput::Item::Nothing)
            break;
        if (item == SoInput::Item::Object && base && base->isOfType(SoNode::getClassTypeId()))
            root->addChild(static_cast<SoNode*>(base));
    }
    root->enableNotify(true);
    in->postErrorCount();
    const int count = root->getNumChildren();
    SoSeparator* result = count > 0 || in->getNumErrors() == 0 ? root : nullptr;
    if (count == 1 && root->getChild(0)->getTypeId() == SoSeparator::getClassTypeId())
        result = static_cast<SoSeparator*>(root->getChild(0));
    if (result)
        result->ref();
    root->unref();
    // What the reader holds goes now, so that every reference left belongs to the graph.
    in->dropReaders();
    if (result)
        result->unrefNoDelete();
    return result;
}

bool SoDB::isValidHeader(const char* line)
{
    const std::string_view text(line);
    return SceneHeader::find(text.data(), text.size()).kind != SceneHeader::Kind::None;
}

bool SoDB::registerHeader(const SbString& header, bool isBinary, HeaderCB preRead, void* data)
{
    return SceneHeader::add(header.toUtf8().constData(),
                            isBinary ? SceneHeader::Kind::Binary : SceneHeader::Kind::Ascii, preRead, data);
}

void SoDB::writelock()
{
    database().lock.lockForWriting();
}

void SoDB::writeunlock()
{
    database().lock.unlockForWriting();
}

void SoDB::readlock()
{
    database().lock.lockForReading();
}

void SoDB::readunlock()
{
    database().lock.unlockForReading();
}

SoSensorManager& SoDB::getSensorManager()
{
    return database().sensors;
}

void SoDB::setDelaySensorTimeout(SbTime timeout)
{
    getSensorManager().setDelaySensorTimeout(timeout);
}

SbTime SoDB::getDelaySensorTimeout()
{
    return getSensorManager().getDelaySensorTimeout();
}

SoField* SoDB::getGlobalField(const SbName& name)
{
    const auto& globals = database().globals;
    const auto found = globals.find(name);
    return found == globals.end() ? nullptr : found->second->field();
}

SoField* SoDB::createGlobalField(const SbName& name, SoType type)
{
    if (SoField* field = getGlobalField(name))
        return field->getTypeId() == type ? field : nullptr;
    if (!type.isDerivedFrom(SoField::getClassTypeId()) || !type.canCreateInstance())
        return nullptr;
    auto* global = new SoGlobalField;
    global->ref();
    global->hold(std::unique_ptr<SoField>(static_cast<SoField*>(type.createInstance())), name);
    database().globals.emplace(name, global);
    return global->field();
}

bool isGlobalField(const SoField& field)
{
    return field.getContainer() && field.getContainer()->isOfType(SoGlobalField::getClassTypeId());
}

void writeGlobalField(SoOutput& out, const SoField& field)
{
    const std::string_view name = field.getName().getView();
    out.write("GlobalField { ");
    out.write(field.getTypeId().getName().getView());
    out.write(' ');
    out.write(name);
    out.write(' ');
    out.write(name);
    out.write(' ');
    field.writeValue(out);
    out.write(" }");
}
