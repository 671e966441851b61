#include "SoVectorizeGDIAction.h"

#include <plotkit/formats/EmfSink.h>

SoGDIVectorOutput::SoGDIVectorOutput() : m_sink(std::make_unique<EmfSink>(device())) {}

SoGDIVectorOutput::~SoGDIVectorOutput() = default;

PictureSink& SoGDIVectorOutput::sink()
{
    return m_sink->front();
}
