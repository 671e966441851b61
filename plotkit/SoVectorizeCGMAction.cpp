#include "SoVectorizeCGMAction.h"

#include <plotkit/formats/CgmSink.h>

SoCGMVectorOutput::SoCGMVectorOutput() : m_sink(std::make_unique<CgmSink>(device())) {}

SoCGMVectorOutput::~SoCGMVectorOutput() = default;

PictureSink& SoCGMVectorOutput::sink()
{
    return m_sink->front();
}
