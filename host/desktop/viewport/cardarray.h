// SPDX-License-Identifier: MIT
#pragma once

#include <QOpenGLBuffer>
#include <QVector>

namespace orvane {

//! An array on the graphics card. All but the construction needs a current context.
class CardArray
{
public:
    explicit CardArray(QOpenGLBuffer::Type type = QOpenGLBuffer::VertexBuffer) : m_buffer(type) {}

    //! How many arrays went to the card since the program began.
    static int UploadCount();

    bool IsEmpty() const { return m_count == 0; }
    //! Of the elements uploaded last.
    int Count() const { return m_count; }

    template <typename T>
    void Upload(const QVector<T> &elements)
    {
        upload(elements.constData(), elements.size() * int(sizeof(T)));
        m_count = elements.size();
    }
    void Bind() { m_buffer.bind(); }
    void Release() { m_buffer.release(); }

private:
    void upload(const void *bytes, int size);

    QOpenGLBuffer m_buffer;
    int m_count = 0;
};

} // namespace orvane
