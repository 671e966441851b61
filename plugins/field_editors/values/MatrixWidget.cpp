#include "MatrixWidget.h"

#include "EulerAngles.h"
#include "NumberGrid.h"
#include "ProblemLine.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr float Same = 1e-5f;

enum Part { Translation, Angles, Scale, Part_count };

/** What a matrix without perspective does, but for the directions in which it scales. */
struct Parts {
    SbVec3f of[Part_count];
    SbRotation scaleOrientation;

    explicit Parts(const SbMatrix& matrix)
    {
        SbRotation rotation;
        matrix.getTransform(of[Translation], rotation, of[Scale], scaleOrientation);
        of[Angles] = EulerAngles::fromRotation(rotation);
    }
    SbMatrix toMatrix() const
    {
        SbMatrix matrix;
        matrix.setTransform(of[Translation], EulerAngles::toRotation(of[Angles]), of[Scale], scaleOrientation);
        return matrix;
    }
};

bool hasPerspective(const SbMatrix& matrix)
{
    return matrix[0][3] != 0 || matrix[1][3] != 0 || matrix[2][3] != 0 || matrix[3][3] != 1;
}

QStringList unnamed(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names += QString();
    return names;
}

QWidget* title(const QString& text)
{
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

MatrixWidget::MatrixWidget(QWidget* parent)
    : ValueWidget(parent), m_elements(new NumberGrid(NumberKind::of<float>(), unnamed(16), 4)),
      m_parts(new NumberGrid(NumberKind::of<float>(), unnamed(9), Part_count)), m_warning(new ProblemLine)
{
    include(*m_elements);
    include(*m_parts);
    connect(m_elements, &NumberGrid::edited, this, &MatrixWidget::takeElement);
    connect(m_parts, &NumberGrid::edited, this, &MatrixWidget::takeParts);
    auto* const titles = new QHBoxLayout;
    for (const QString& text : {tr("Translation"), tr("Rotation in degrees"), tr("Scale")})
        titles->addWidget(title(text), 1);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_elements);
    rows->addWidget(m_warning);
    rows->addSpacing(6);
    rows->addLayout(titles);
    rows->addWidget(m_parts);
}

void MatrixWidget::takeElement(int i, double number)
{
    SbMatrix matrix = m_value.getValue();
    matrix[i / 4][i % 4] = float(number);
    take(matrix);
}

void MatrixWidget::takeParts()
{
    Parts parts(m_value.getValue());
    for (int i = 0; i < m_parts->count(); ++i)
        parts.of[i % Part_count][i / Part_count] = float(m_parts->value(i));
    take(parts.toMatrix());
}

void MatrixWidget::take(const SbMatrix& matrix)
{
    m_value.setValue(matrix);
    showMatrix();
    emit edited(m_value);
}

void MatrixWidget::showValue(const SoField& value)
{
    m_value.copyFrom(value);
    showMatrix();
}

void MatrixWidget::showMatrix()
{
    const SbMatrix& matrix = m_value.getValue();
    for (int i = 0; i < m_elements->count(); ++i)
        m_elements->setValue(i, double(matrix[i / 4][i % 4]));
    m_warning->setProblem(warning());
    showParts();
}

void MatrixWidget::showParts()
{
    Parts parts(m_value.getValue());
    // Other angles may stand for the same rotation: those that do already stay as they were typed.
    Parts typed = parts;
    for (int row = 0; row < 3; ++row)
        typed.of[Angles][row] = float(m_parts->value(row * Part_count + Angles));
    if (typed.toMatrix().equals(m_value.getValue(), Same))
        parts = typed;
    for (int i = 0; i < m_parts->count(); ++i)
        m_parts->setValue(i, double(parts.of[i % Part_count][i / Part_count]));
}

QString MatrixWidget::warning() const
{
    const SbMatrix& matrix = m_value.getValue();
    if (!matrix.isInvertible())
        return tr("The matrix is singular: it flattens space and has no inverse.");
    if (hasPerspective(matrix))
        return tr("The fourth column projects; translation, rotation and scale leave it out.");
    return QString();
}

void MatrixWidget::setReadOnly(bool isReadOnly)
{
    m_elements->setReadOnly(isReadOnly);
    m_parts->setReadOnly(isReadOnly);
}
