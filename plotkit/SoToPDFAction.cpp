#include "SoToPDFAction.h"
#include "SoVectorOutput.h"

#include <plotkit/formats/CairoSink.h>

#include <utility>

class SoToPDFAction::Output : public SoVectorOutput {
public:
    PictureSink& sink() override { return m_sink; }

private:
    CairoSink m_sink{device(), CairoSink::Format::Pdf};
};

SoToPDFAction::SoToPDFAction() : SoToPDFAction(std::make_unique<Output>()) {}

SoToPDFAction::SoToPDFAction(std::unique_ptr<Output> output) : SoVectorizeAction(*output), m_output(std::move(output))
{
}

SoToPDFAction::~SoToPDFAction() = default;

bool SoToPDFAction::openFile(const SbString& fileName)
{
    return m_output->openFile(fileName);
}

bool SoToPDFAction::closeFile()
{
    return m_output->closeFile();
}

SbString SoToPDFAction::getErrorText() const
{
    return m_output->getErrorText();
}
