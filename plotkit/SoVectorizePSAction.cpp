#include "SoVectorizePSAction.h"

#include <plotkit/formats/CairoSink.h>

SoPSVectorOutput::SoPSVectorOutput() : m_sink(std::make_unique<CairoSink>(device(), CairoSink::Format::PostScript)) {}

SoPSVectorOutput::~SoPSVectorOutput() = default;

PictureSink& SoPSVectorOutput::sink()
{
    return *m_sink;
}
