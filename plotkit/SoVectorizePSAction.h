#pragma once

#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>

#include <memory>

/** A PostScript file of one page. */
class PLOTKIT_API SoPSVectorOutput : public SoVectorOutput {
public:
    SoPSVectorOutput();
    ~SoPSVectorOutput() override;

    PictureSink& sink() override;

private:
    std::unique_ptr<PictureSink> m_sink;
};

/** Draws a graph into a PostScript file. */
class PLOTKIT_API SoVectorizePSAction : public SoVectorizeAction {
public:
    SoVectorizePSAction() : SoVectorizeAction(m_output) {}

    SoPSVectorOutput* getPSVectorOutput() { return &m_output; }

private:
    SoPSVectorOutput m_output;
};
