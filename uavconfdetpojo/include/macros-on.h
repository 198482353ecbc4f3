// Included last by a header that declares a class of the protocol; macros-off.h ends it at the header's end:
// the library's namespace, and its macros. So no client sees a macro of ours, and a client's own of the same
// name is set aside meanwhile. Deliberately without a guard. Macros only declare.
//
// The namespace is inline: a client spells each name without it, and a Log or Utils of the client's own, in
// another source file, is another one to the linker.

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

// A message or nested value states its fields as FIELDS(FIELD), one FIELD(Type, key, AccessorName) a line, in
// wire order. A type that holds a comma needs an alias.

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

// The body of the builder that holds its value in `member`: one operation per field, each returning a copy of
// the builder, `build()`, and `share()`, which makes the value that the library's operations take.
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

// An enumeration states its enumerators as ENUMERATORS(ENUMERATOR), one ENUMERATOR(NAME, attribute...) a
// line: the enumerator, which is also its name on the wire, and the further fields of its record.
// ENUMERATION(Class) declares the enumeration, the table of the records and, for the source file that defines
// the table, its rows.

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

// An enumeration that has nothing but its names.
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
