// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/cardarray.h"

namespace orvane {

namespace {
int uploads = 0;
} // namespace

int CardArray::UploadCount()
{
    return uploads;
}

void CardArray::upload(const void *bytes, int size)
{
    if (!m_buffer.isCreated())
        m_buffer.create();
    m_buffer.bind();
    m_buffer.allocate(bytes, size);
    m_buffer.release();
    ++uploads;
}

} // namespace orvane
