#include "conf-param.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(ConfParam, CONF_PARAM_FIELDS)
