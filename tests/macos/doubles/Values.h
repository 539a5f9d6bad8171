// SPDX-License-Identifier: MIT
// Errors created by tests.
#pragma once

#import <Foundation/Foundation.h>

namespace doubles {

NSError* errorSaying(NSString* words);

}  // namespace doubles
