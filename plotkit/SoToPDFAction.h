#pragma once

#include <plotkit/SoVectorizeAction.h>

#include <memory>

class SbString;

/** Draws a graph into a PDF file of one page. */
class PLOTKIT_API SoToPDFAction : public SoVectorizeAction {
public:
    SoToPDFAction();
    ~SoToPDFAction() override;

    /** As those of SoVectorOutput. */
    ///@{
    bool openFile(const SbString& fileName);
    bool closeFile();
    SbString getErrorText() const;
    ///@}

private:
    class Output;

    explicit SoToPDFAction(std::unique_ptr<Output> output);

    std::unique_ptr<Output> m_output;
};
