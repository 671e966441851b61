#pragma once

#include <vector>

class SoDataSensor;
class SoEngineOutput;
class SoField;

/** What few fields have: a source, followers, sensors. */
struct SoFieldLinks {
    SoField* sourceField = nullptr;
    SoEngineOutput* sourceOutput = nullptr;
    std::vector<SoField*> followers;
    std::vector<SoDataSensor*> sensors;
};
