#pragma once

/** Defines the type of a concrete field class: registered once, made without a container. */
#define SO_FIELD_SOURCE(Class, Base)                                                                                   \
    SoType Class::getClassTypeId()                                                                                     \
    {                                                                                                                  \
        static const SoType type =                                                                                     \
            SoType::createType(Base::getClassTypeId(), #Class, []() -> void* { return new Class; });                   \
        return type;                                                                                                   \
    }                                                                                                                  \
    SoType Class::getTypeId() const                                                                                    \
    {                                                                                                                  \
        return getClassTypeId();                                                                                       \
    }
