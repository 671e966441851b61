#pragma once

#include <vexel/base/SbName.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SbTime.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>

class SoField;
class SoInput;
class SoNode;
class SoPath;
class SoSensorManager;
class SoSeparator;

/** The toolkit as a whole: its start, reading of scenes, locks, and the sensor queues. All members are static. */
class VEXEL_API SoDB {
public:
    SoDB() = delete;

    /** Registers all types. To be called once before anything else; further calls do nothing. */
    static void init();
    static bool isInitialized();
    /** Name and version of the toolkit, as "Vexel 0.1.0". */
    static SbString getVersion();

    /** Reads the next node or path. True with a null node at the end of the input; false after an error. */
    static bool read(SoInput* in, SoNode*& root);
    static bool read(SoInput* in, SoPath*& path);
    /**
     * Reads all that is there: the root separator when the input holds just one, otherwise all nodes under a new
     * separator. Null when nothing could be read; errors are posted and what was good is kept. The result has a
     * reference count of 0.
     */
    static SoSeparator* readAll(SoInput* in);

    using HeaderCB = void (*)(void* data, SoInput* in);
    /** True for the first line of a scene file: one of the toolkit's own, or a registered one. */
    static bool isValidHeader(const char* line);
    /**
     * Lets files with the first line @p header be read too, as ascii or as binary.
     * @param preRead  called before such a file is read; may be null
     */
    static bool registerHeader(const SbString& header, bool isBinary, HeaderCB preRead, void* data);

    /**
     * Locks the graphs of the process against all other threads. A thread may nest its locks; a thread that holds a
     * read lock must not ask for the write lock.
     */
    static void writelock();
    static void writeunlock();
    /** Locks the graphs against changes by other threads. */
    static void readlock();
    static void readunlock();

    static SoSensorManager& getSensorManager();
    /** How long the delay queue waits at most while the program is busy; 0 stands for any length of time. */
    static void setDelaySensorTimeout(SbTime timeout);
    static SbTime getDelaySensorTimeout();

    /** A field known to the whole process by its name; "realTime", an SFTime, keeps the time of day. Null when unknown.
     */
    static SoField* getGlobalField(const SbName& name);
    /** The global field of that name, made when there is none. Null when it exists with another type. */
    static SoField* createGlobalField(const SbName& name, SoType type);
};

/** The part of the toolkit below nodes: types, fields, preferences. SoDB::init() calls it. */
class VEXEL_API SoVexelBase {
public:
    static void init();
};
