// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/shader.h"

#include "host/desktop/viewport/cardarray.h"

#include <orvane/base/log.h>
#include <orvane/math/matrix.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace orvane {

namespace {
const int PositionLocation = 0;
const int NormalLocation = 1;
} // namespace

Shader::Shader(const char *vertexSource, const char *fragmentSource)
{
    m_program.addShaderFromSourceCode(QOpenGLShader::Vertex, vertexSource);
    m_program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentSource);
    m_program.bindAttributeLocation("position", PositionLocation);
    m_program.bindAttributeLocation("normal", NormalLocation);
    if (!m_program.link())
        log(QStringLiteral("A program of the view does not compile: %1").arg(m_program.log()));
}

void Shader::Begin()
{
    m_program.bind();
}

void Shader::End()
{
    m_program.disableAttributeArray(PositionLocation);
    m_program.disableAttributeArray(NormalLocation);
    QOpenGLBuffer::release(QOpenGLBuffer::VertexBuffer);
    QOpenGLBuffer::release(QOpenGLBuffer::IndexBuffer);
    m_program.release();
}

void Shader::Set(const char *name, const Matrix &matrix)
{
    // Not transposed: see Camera on the order of the floats.
    QOpenGLContext::currentContext()->functions()->glUniformMatrix4fv(
        m_program.uniformLocation(name), 1, GL_FALSE, matrix.Data());
}

void Shader::SetPositions(CardArray &array)
{
    setAttribute(PositionLocation, array);
}

void Shader::SetNormals(CardArray &array)
{
    setAttribute(NormalLocation, array);
}

void Shader::setAttribute(int location, CardArray &array)
{
    array.Bind();
    m_program.enableAttributeArray(location);
    m_program.setAttributeBuffer(location, GL_FLOAT, 0, 3);
}

} // namespace orvane
