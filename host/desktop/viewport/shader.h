// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QOpenGLShaderProgram>

namespace orvane {

class CardArray;
class Matrix;

//! A program of GLSL 1.20 with the attributes "position" and "normal", three floats each.
//! Made and used while its context is current.
class Shader
{
public:
    //! What the driver does not accept is logged; nothing is seen then.
    Shader(const char *vertexSource, const char *fragmentSource);

    void Begin();
    //! Also leaves no array bound.
    void End();

    //! Uniforms; between Begin and End.
    void Set(const char *name, const Matrix &matrix);
    void Set(const char *name, float value) { m_program.setUniformValue(name, value); }
    void Set(const char *name, const QColor &colour) { m_program.setUniformValue(name, colour); }
    void SetPositions(CardArray &array);
    void SetNormals(CardArray &array);

private:
    void setAttribute(int location, CardArray &array);

    QOpenGLShaderProgram m_program;
};

} // namespace orvane
