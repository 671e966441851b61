#pragma once

#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>

#include <memory>

class PlainSink;

/**
 * A plot in HP-GL/2. The language has neither gradients nor transparency: shaded surfaces are cut into parts of one
 * colour, and transparent things cover what is behind them in a colour mixed with that of the ground. Texts are labels
 * in the letters of the plotter; those of ASCII are kept.
 */
class PLOTKIT_API SoHPGLVectorOutput : public SoVectorOutput {
public:
    enum Pens {
        /** Printers: up to 255 pens, which get the colours of the picture. */
        PALETTE,
        /** Pen plotters with the pens 1 black, 2 red, 3 green, 4 yellow, 5 blue, 6 magenta, 7 cyan, 8 orange, each
         *  0.3 mm wide: surfaces are hatched, the darker the closer. The ground is left out. */
        CAROUSEL_HATCHED,
        /** The same pens: of surfaces, the outlines of what is seen of their triangles are drawn. */
        CAROUSEL_OUTLINES
    };

    SoHPGLVectorOutput();
    ~SoHPGLVectorOutput() override;

    /** PALETTE at first; to be called before the graph is drawn. */
    void setPens(Pens pens);

    PictureSink& sink() override;

private:
    std::unique_ptr<PlainSink> m_sink;
};

/** Draws a graph into an HP-GL/2 plot. */
class PLOTKIT_API SoVectorizeHPGLAction : public SoVectorizeAction {
public:
    SoVectorizeHPGLAction() : SoVectorizeAction(m_output) {}

    SoHPGLVectorOutput* getHPGLVectorOutput() { return &m_output; }

private:
    SoHPGLVectorOutput m_output;
};
