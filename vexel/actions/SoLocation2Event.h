#pragma once

#include <vexel/actions/SoEvent.h>

/** The pointer moved. */
class VEXEL_API SoLocation2Event : public SoEvent {
    SO_EVENT(SoLocation2Event)
};
