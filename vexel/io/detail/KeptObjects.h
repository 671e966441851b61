#pragma once

#include <vector>

#include <vexel/base/SoBase.h>

/** One reference on each object that a reader made, so that a part outlives an error in what should hold it. */
class KeptObjects {
public:
    KeptObjects() = default;
    KeptObjects(const KeptObjects&) = delete;
    KeptObjects& operator=(const KeptObjects&) = delete;
    ~KeptObjects()
    {
        for (SoBase* object : m_objects)
            object->unref();
    }

    void add(SoBase* object)
    {
        object->ref();
        m_objects.push_back(object);
    }

private:
    std::vector<SoBase*> m_objects;
};
