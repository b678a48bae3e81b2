// Put before the player's own start-up code (--pre-js), inside its closure.
//
// A box must give its answer back inside the script's run: the engine runs a
// script to its end on one stack, and a page cannot block for a click. The
// browser's promise integration for WebAssembly (JSPI) lets the two box calls
// suspend the player's stack until the visitor answers, while the engine's
// own code runs untouched at full speed. The calls that can run a script are
// the promising ones: they hand back a promise the page waits on.
//
// A browser without JSPI gets the boxes of its own (alert, confirm, prompt):
// modal, with the answer reaching the script, in the browser's look.

var QOR_SUSPENDING_IMPORTS = ['js_message_box', 'js_input_box'];
// Every call of the page's may run a script, but for the context menu's
// list, which the page reads at once.
var QOR_PLAIN_CALLS = ['qor_context_entries'];

Module['qorWaits'] = typeof WebAssembly.Suspending === 'function' && typeof WebAssembly.promising === 'function';

Module['instantiateWasm'] = function (imports, receiveInstance) {
  if (Module['qorWaits']) {
    QOR_SUSPENDING_IMPORTS.forEach(function (name) {
      imports['env'][name] = new WebAssembly.Suspending(imports['env'][name]);
    });
  }
  WebAssembly.instantiate(getBinary(wasmBinaryFile), imports).then(function (result) {
    var exports = Object.assign({}, result.instance.exports);
    if (Module['qorWaits']) {
      Object.keys(exports).forEach(function (name) {
        if (name.indexOf('qor_') === 0 && QOR_PLAIN_CALLS.indexOf(name) < 0)
          exports[name] = WebAssembly.promising(result.instance.exports[name]);
      });
    }
    receiveInstance({ exports: exports }, result.module);
  }, function (reason) {
    err('WebAssembly: ' + reason);
    abort(reason);
  });
  return {};
};

// One call into the player: text arguments copied into its memory for as
// long as the call lasts (a suspended call still reads them), the answer as
// a promise whether the call waited on a box or not.
Module['qorCall'] = function (name, returnType, argTypes, args) {
  var owned = [];
  var values = args.map(function (value, i) {
    if (argTypes[i] !== 'string')
      return value;
    var size = lengthBytesUTF8(value) + 1;
    var p = _malloc(size);
    stringToUTF8(value, p, size);
    owned.push(p);
    return p;
  });
  var finish = function (result) {
    var out = returnType === 'string' ? UTF8ToString(result) : result;
    owned.forEach(function (p) { _free(p); });
    return out;
  };
  // A call the browser broke off (its own stack exhausted) leaves the
  // player's stack pointer where it was: set it back.
  var top = stackSave();
  var fail = function (e) {
    stackRestore(top);
    owned.forEach(function (p) { _free(p); });
    throw e;
  };
  var result;
  try {
    result = Module['_' + name].apply(null, values);
  } catch (e) {
    fail(e);
  }
  return Promise.resolve(result).then(finish, fail);
};
