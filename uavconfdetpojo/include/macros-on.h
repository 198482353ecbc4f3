// Opens the library's namespace and defines the library's macros. A header that declares a class of the
// protocol includes it last, and includes macros-off.h at its end. So no client sees our macros. A client's
// macro of the same name is saved meanwhile. On purpose: no include guard. The macros only declare.
//
// The namespace is inline, so a client writes each name without it. A client may have a class Log or Utils of
// its own in another source file; the linker does not mix them up.

#pragma push_macro("FIELD")
#pragma push_macro("FIELDS")
#pragma push_macro("FIELD_ACCESSORS")
#pragma push_macro("FIELD_KEY")
#pragma push_macro("FIELD_VISIT")
#pragma push_macro("FIELDS_BODY")
#pragma push_macro("FIELD_BUILDER")
#pragma push_macro("BUILDER_BODY")
#pragma push_macro("NESTED_VALUE")
#pragma push_macro("MESSAGE")
#pragma push_macro("ENUMERATORS")
#pragma push_macro("ENUMERATOR_NAME")
#pragma push_macro("ENUMERATOR_NAME_")
#pragma push_macro("ENUMERATOR_ONE")
#pragma push_macro("ENUMERATOR_ROW")
#pragma push_macro("ENUMERATOR_ROW_")
#pragma push_macro("ENUMERATION_WITHOUT_ROWS")
#pragma push_macro("ENUMERATION")
#pragma push_macro("NAMES_ENUMERATION")
#pragma push_macro("DECLARE_CLASS")
#pragma push_macro("VISIT_CLASS")
#pragma push_macro("MAKE_ROW")
#undef FIELD
#undef FIELDS
#undef FIELD_ACCESSORS
#undef FIELD_KEY
#undef FIELD_VISIT
#undef FIELDS_BODY
#undef FIELD_BUILDER
#undef BUILDER_BODY
#undef NESTED_VALUE
#undef MESSAGE
#undef ENUMERATORS
#undef ENUMERATOR_NAME
#undef ENUMERATOR_NAME_
#undef ENUMERATOR_ONE
#undef ENUMERATOR_ROW
#undef ENUMERATOR_ROW_
#undef ENUMERATION_WITHOUT_ROWS
#undef ENUMERATION
#undef NAMES_ENUMERATION
#undef DECLARE_CLASS
#undef VISIT_CLASS
#undef MAKE_ROW

// A message or nested value lists its fields as FIELDS(FIELD), with a line FIELD(Type, key, AccessorName) for
// each, in the written order. A type with a comma in it needs an alias.

#define FIELD_ACCESSORS(Type, key, Name) \
public:                                  \
    Type get##Name() const {             \
        return key;                      \
    }                                    \
    void set##Name(Type newValue) {      \
        initVals.at(Key::key) = true;    \
        key = std::move(newValue);       \
    }                                    \
    void remove##Name() {                \
        initVals.at(Key::key) = false;   \
        key = Type();                    \
    }                                    \
                                         \
private:                                 \
    Type key{};

#define FIELD_KEY(Type, key, Name) key,
#define FIELD_VISIT(Type, key, Name)                       \
    {                                                      \
        static const std::string name = #key;              \
        visit(name, self.key, self.initVals.at(Key::key)); \
    }

#define FIELDS_BODY                                                                           \
    FIELDS(FIELD_ACCESSORS)                                                                   \
private:                                                                                      \
    friend struct FieldAccess;                                                                \
    template <typename Self, typename Visit>                                                  \
    static void eachField([[maybe_unused]] Self &self, [[maybe_unused]] const Visit &visit) { \
        FIELDS(FIELD_VISIT)                                                                   \
    }                                                                                         \
    enum class Key { FIELDS(FIELD_KEY) COUNT };                                               \
    PresenceMap<Key> initVals;

#define FIELD_BUILDER(Type, key, Name)         \
    auto key(Type newValue) {                  \
        held().set##Name(std::move(newValue)); \
        return *this;                          \
    }

// The body of a builder whose value is `member`. It has one operation for each field, which returns a copy of
// the builder; `build()`, which returns the value; and `share()`, which returns a shared pointer to it, as
// the library's operations need it.
#define BUILDER_BODY(Class, member)             \
public:                                         \
    FIELDS(FIELD_BUILDER)                       \
    Class build() const {                       \
        return member;                          \
    }                                           \
    std::shared_ptr<Class> share() const {      \
        return std::make_shared<Class>(member); \
    }                                           \
                                                \
private:                                        \
    Class &held() {                             \
        return member;                          \
    }                                           \
    Class member;

#define NESTED_VALUE(Class, member)           \
    class Class : public NestedValue<Class> { \
        FIELDS_BODY                           \
    };                                        \
    class Class##Builder {                    \
        BUILDER_BODY(Class, member)           \
    };

#define MESSAGE(Class, member, Type)                           \
    class Class : public TypedMsg<Class> {                     \
    public:                                                    \
        static constexpr MsgTypeEnum TYPE = MsgTypeEnum::Type; \
        FIELDS_BODY                                            \
    };                                                         \
    class Class##Builder {                                     \
        BUILDER_BODY(Class, member)                            \
    };

// An enumeration lists its enumerators as ENUMERATORS(ENUMERATOR), with a line ENUMERATOR(NAME, attribute...)
// for each. NAME is the enumerator and also its wire name; the attributes are the other fields of its record.
// ENUMERATION(Class) declares the enumeration, the table of the records and the rows of the table. A source
// file defines the table from those rows.

#define ENUMERATOR_NAME(...) ENUMERATOR_NAME_(__VA_ARGS__, )
#define ENUMERATOR_NAME_(NAME, ...) NAME,
#define ENUMERATOR_ONE(...) +1
#define ENUMERATOR_ROW(...) ENUMERATOR_ROW_(__VA_ARGS__, )
#define ENUMERATOR_ROW_(NAME, ...) {#NAME, __VA_ARGS__},

#define ENUMERATION_WITHOUT_ROWS(Class)                                                          \
    class Class;                                                                                 \
    enum class _##Class##Enum : int{ENUMERATORS(ENUMERATOR_NAME)};                               \
    using Class##Enum = _##Class##Enum;                                                          \
    extern const std::array<_##Class##EnumBase, ENUMERATORS(ENUMERATOR_ONE)> Class##Enum_values; \
    template <>                                                                                  \
    struct EnumClassOf<Class##Enum> {                                                            \
        using type = Class;                                                                      \
    };

#define ENUMERATION(Class)                                            \
    ENUMERATION_WITHOUT_ROWS(Class)                                   \
    template <typename Record>                                        \
    std::array<Record, ENUMERATORS(ENUMERATOR_ONE)> rowsOf##Class() { \
        return {{ENUMERATORS(ENUMERATOR_ROW)}};                       \
    }

// An enumeration without attributes.
#define NAMES_ENUMERATION(Class)                                      \
    struct _##Class##EnumBase {                                       \
        std::string strValue;                                         \
    };                                                                \
    ENUMERATION(Class)                                                \
    class Class : public EnumClass<Class##Enum, Class##Enum_values> { \
    public:                                                           \
        using EnumClass::EnumClass;                                   \
    };

inline namespace kelvane {
