// SPDX-License-Identifier: MIT
#include "platform/lumora/fields/LuFields.h"

#include "platform/lumora/nodes/LuNode.h"

#include <algorithm>

template <class T>
bool LuSFValue<T>::isSame(const LuField& other) const {
    const auto* same = dynamic_cast<const LuSFValue*>(&other);
    return same && same->m_value == m_value;
}

template <class T>
void LuSFValue<T>::copyFrom(const LuField& other) {
    if (const auto* same = dynamic_cast<const LuSFValue*>(&other))
        setValue(T(same->m_value));
}

template <class T>
void LuMFValue<T>::set1Value(int index, T value) {
    if (index < 0)
        return;
    if (index >= getNum())
        m_values.resize(static_cast<std::size_t>(index) + 1);
    m_values[static_cast<std::size_t>(index)] = std::move(value);
    valueChanged();
}

template <class T>
void LuMFValue<T>::setNum(int length) {
    m_values.resize(static_cast<std::size_t>(std::max(length, 0)));
    valueChanged();
}

template <class T>
void LuMFValue<T>::insertSpace(int index, int count) {
    if (count <= 0)
        return;
    m_values.insertSpace(static_cast<std::size_t>(std::clamp(index, 0, getNum())),
                         static_cast<std::size_t>(count));
    valueChanged();
}

template <class T>
void LuMFValue<T>::deleteValues(int index, int count) {
    const int first = std::clamp(index, 0, getNum());
    const int left = getNum() - first;
    const int removed = count < 0 ? left : std::min(count, left);
    m_values.erase(static_cast<std::size_t>(first), static_cast<std::size_t>(removed));
    valueChanged();
}

template <class T>
bool LuMFValue<T>::isSame(const LuField& other) const {
    const auto* same = dynamic_cast<const LuMFValue*>(&other);
    return same && same->m_values == m_values;
}

template <class T>
void LuMFValue<T>::copyFrom(const LuField& other) {
    if (const auto* same = dynamic_cast<const LuMFValue*>(&other)) {
        m_values.assignAll(same->m_values);
        valueChanged();
    }
}

const LuEnumData* LuSFEnum::getEnums() const {
    const LuFieldContainer* const container = getContainer();
    const LuFieldData* const data = container ? container->getFieldData() : nullptr;
    return data ? data->getEnumOfField(container, this) : nullptr;
}

bool LuSFEnum::isSame(const LuField& other) const {
    const auto* same = dynamic_cast<const LuSFEnum*>(&other);
    return same && same->m_value == m_value;
}

void LuSFEnum::copyFrom(const LuField& other) {
    if (const auto* same = dynamic_cast<const LuSFEnum*>(&other))
        setValue(same->m_value);
}

LuSFNode::~LuSFNode() { hold(nullptr); }

void LuSFNode::hold(LuNode* node) {
    if (node == m_node)
        return;
    LuNode* const before = m_node;
    m_node = node;
    if (node) {
        node->ref();
        node->addObserver(LuObserver(static_cast<LuField*>(this)));
    }
    if (before) {
        before->removeObserver(LuObserver(static_cast<LuField*>(this)));
        before->unref();
    }
}

void LuSFNode::setValue(LuNode* node) {
    // The node before may be what kept the owner of this field.
    const LuKeepAlive alive(m_node);
    hold(node);
    valueChanged();
}

bool LuSFNode::isSame(const LuField& other) const {
    const auto* same = dynamic_cast<const LuSFNode*>(&other);
    if (!same)
        return false;
    if (!m_node || !same->m_node)
        return m_node == same->m_node;
    return m_node->isEqual(*same->m_node);
}

void LuSFNode::copyFrom(const LuField& other) {
    if (const auto* same = dynamic_cast<const LuSFNode*>(&other))
        setValue(same->m_node);
}

template class LuSFValue<bool>;
template class LuSFValue<std::int32_t>;
template class LuSFValue<float>;
template class LuSFValue<LvString>;
template class LuSFValue<LvName>;
template class LuSFValue<LvVec2i32>;
template class LuSFValue<LvVec2f>;
template class LuSFValue<LvVec3f>;
template class LuSFValue<LvColor>;
template class LuSFValue<LvRotation>;
template class LuSFValue<LvMatrix>;
template class LuSFValue<LvPlane>;
template class LuSFValue<LuFilePath>;
template class LuMFValue<std::int32_t>;
template class LuMFValue<float>;
template class LuMFValue<LvString>;
template class LuMFValue<LvVec2f>;
template class LuMFValue<LvVec3f>;
template class LuMFValue<LvColor>;
