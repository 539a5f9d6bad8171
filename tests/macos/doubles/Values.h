// SPDX-License-Identifier: MIT
// Errors as tests make them.
#pragma once

#import <Foundation/Foundation.h>

namespace doubles {

NSError* errorSaying(NSString* words);

}  // namespace doubles
