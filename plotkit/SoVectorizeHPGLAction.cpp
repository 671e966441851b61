#include "SoVectorizeHPGLAction.h"

#include <plotkit/formats/HpglSink.h>

SoHPGLVectorOutput::SoHPGLVectorOutput()
{
    setPens(PALETTE);
}

SoHPGLVectorOutput::~SoHPGLVectorOutput() = default;

void SoHPGLVectorOutput::setPens(Pens pens)
{
    HpglSink::Mode mode = HpglSink::Mode::Palette;
    if (pens == CAROUSEL_HATCHED)
        mode = HpglSink::Mode::Hatching;
    else if (pens == CAROUSEL_OUTLINES)
        mode = HpglSink::Mode::Outlines;
    m_sink = std::make_unique<HpglSink>(device(), mode);
}

PictureSink& SoHPGLVectorOutput::sink()
{
    return m_sink->front();
}
