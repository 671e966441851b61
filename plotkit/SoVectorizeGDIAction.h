#pragma once

#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>

#include <memory>

class PlainSink;

/**
 * An enhanced metafile of drawing commands, as [MS-EMF] describes them. Its gradients are unknown to most readers, and
 * it has no transparency: shaded surfaces are cut into parts of one colour, and transparent things cover what is behind
 * them in a colour mixed with that of the ground. Letters of texts stand where the metrics of their font lay them;
 * without a QGuiApplication, in even steps.
 */
class PLOTKIT_API SoGDIVectorOutput : public SoVectorOutput {
public:
    SoGDIVectorOutput();
    ~SoGDIVectorOutput() override;

    PictureSink& sink() override;

private:
    std::unique_ptr<PlainSink> m_sink;
};

/** Draws a graph into an enhanced metafile. */
class PLOTKIT_API SoVectorizeGDIAction : public SoVectorizeAction {
public:
    SoVectorizeGDIAction() : SoVectorizeAction(m_output) {}

    SoGDIVectorOutput* getGDIVectorOutput() { return &m_output; }

private:
    SoGDIVectorOutput m_output;
};
