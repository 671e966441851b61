#pragma once

#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>

#include <memory>

class PlainSink;

/**
 * A computer graphics metafile in the binary encoding of ISO/IEC 8632-3, version 1. The format has neither gradients
 * nor transparency: shaded surfaces are cut into parts of one colour, and transparent things cover what is behind them
 * in a colour mixed with that of the ground. Of the letters of texts, those of ASCII are kept.
 */
class PLOTKIT_API SoCGMVectorOutput : public SoVectorOutput {
public:
    SoCGMVectorOutput();
    ~SoCGMVectorOutput() override;

    PictureSink& sink() override;

private:
    std::unique_ptr<PlainSink> m_sink;
};

/** Draws a graph into a computer graphics metafile. */
class PLOTKIT_API SoVectorizeCGMAction : public SoVectorizeAction {
public:
    SoVectorizeCGMAction() : SoVectorizeAction(m_output) {}

    SoCGMVectorOutput* getCGMVectorOutput() { return &m_output; }

private:
    SoCGMVectorOutput m_output;
};
